#include "win32/form_view.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>

#include "platform/clean_up.h"
#include "win32/captions.h"
#include "win32/mouse_buttons.h"
#include "win32/wide_text.h"

namespace plexel {

namespace {

constexpr DWORD Style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
constexpr DWORD Extended = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT | WS_EX_WINDOWEDGE;

/// The resolution of a window, which systems before Windows 10 do not tell apart from that of the screen.
int DpiOf(HWND window) {
  using GetDpi = UINT(WINAPI*)(HWND);
  static const auto getDpi = reinterpret_cast<GetDpi>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
  if (getDpi != nullptr && window != nullptr) {
    const UINT dpi = getDpi(window);
    if (dpi != 0) return static_cast<int>(dpi);
  }
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return dpi;
}

Scale ScaleOf(HWND window) { return Scale(DpiOf(window)); }

bool OnAnyScreen(const RECT& place) { return MonitorFromRect(&place, MONITOR_DEFAULTTONULL) != nullptr; }

RECT WorkAreaAround(HWND window) {
  MONITORINFO info = {};
  info.cbSize = sizeof info;
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &info);
  return info.rcWork;
}

bool LiesIn(const Control& control, const Control* container, int page) {
  return control.Container() == container && (container == nullptr || control.Page() == page);
}

}  // namespace

FormView::FormView(Form& form, HWND owner, FormDesk& desk)
    : form_(form), desk_(desk), scale_(ScaleOf(owner)), owner_(owner) {
  window_ = MakeWindow(*this, FormClass, Style, Extended, {}, owner);
  scale_ = ScaleOf(window_);
  MakeViews();
  OrderLabels();
  MakeToolTips();
}

FormView::~FormView() {
  others_.Enable();
  if (window_ != nullptr) DestroyWindow(window_);
}

void FormView::MakeViews() {
  for (Control* control : form_.Controls()) MakeViewOf(*control);
}

void FormView::MakeViewOf(Control& control) {
  if (viewOf_.contains(&control)) return;
  Control* const container = control.Container();
  if (container != nullptr) MakeViewOf(*container);
  const ControlView* const around = ViewOf(container);
  std::unique_ptr<ControlView> view =
      MakeControlView(control, around != nullptr ? around->Inner(control.Page()) : window_, *this);
  if (!view) return;
  viewOf_[&control] = view.get();
  views_.push_back(std::move(view));
}

void FormView::OrderLabels() {
  for (const Control* const control : form_.Controls()) {
    if (control->Kind() != ControlKind::Label) continue;
    const ControlView* const label = ViewOf(control);
    const ControlView* const named = ViewOf(static_cast<const Label*>(control)->Names());
    if (named == nullptr || GetParent(named->Outer()) != GetParent(label->Outer())) continue;
    SetWindowPos(named->Outer(), label->Outer(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
}

void FormView::MakeToolTips() {
  constexpr int LongestLine = 480;
  toolTips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0,
                              0, window_, nullptr, ThisInstance(), nullptr);
  SendMessageW(toolTips_, TTM_SETMAXTIPWIDTH, 0, scale_.Of(LongestLine));
  for (const std::unique_ptr<ControlView>& view : views_) {
    TOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = window_;
    tool.uId = reinterpret_cast<UINT_PTR>(view->Outer());
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    SendMessageW(toolTips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  }
}

ControlView* FormView::ViewOf(const Control* control) const {
  const auto found = viewOf_.find(control);
  return found == viewOf_.end() ? nullptr : found->second;
}

/// A window that is a part of a control's view counts as the control's.
ControlView* FormView::ViewOfWindow(HWND window) const {
  for (HWND one = window; one != nullptr && one != window_; one = GetParent(one)) {
    for (const std::unique_ptr<ControlView>& view : views_) {
      if (view->Outer() == one || view->FocusWindow() == one) return view.get();
    }
  }
  return nullptr;
}

void FormView::Show() {
  const RECT place = scale_.PixelRect(form_.Left(), form_.Top(), form_.Width(), form_.Height());
  if (!form_.Placed() || !OnAnyScreen(place)) PlaceOverOwner();
  Sync();
  others_.DisableAllBut(window_);
  ShowWindow(window_, SW_SHOW);
  SetForegroundWindow(window_);
  Sync();
}

void FormView::PlaceOverOwner() {
  RECT around = WorkAreaAround(owner_);
  if (owner_ != nullptr && IsIconic(owner_) == FALSE) GetWindowRect(owner_, &around);
  const int left = (around.left + around.right - scale_.ToPixels(form_.Width())) / 2;
  const int top = (around.top + around.bottom - scale_.ToPixels(form_.Height())) / 2;
  Hand(form_).Move(scale_.ToTwips(std::max(0, left)), scale_.ToTwips(std::max(0, top)));
}

void FormView::Hide() {
  if (tracking_) EndMenu();
  // Ahead of the hiding, so that the window below gets the keys and no other program's.
  others_.Enable();
  if (window_ != nullptr) ShowWindow(window_, SW_HIDE);
}

void FormView::Sync() {
  if (window_ == nullptr || syncing_) return;
  syncing_ = true;
  const AtEnd synced([this] { syncing_ = false; });
  for (const std::unique_ptr<ControlView>& view : views_) view->Sync();
  SyncWindow();
  SyncFocus();
  if (tracking_ && form_.OpenPopup() == nullptr) EndMenu();
}

void FormView::SyncWindow() {
  const std::wstring caption = Wide(form_.Caption());
  if (caption_ != caption) {
    caption_ = caption;
    SetWindowTextW(window_, caption.c_str());
  }
  RECT client, wanted = scale_.PixelRect(0, 0, form_.ClientWidth(), form_.ClientHeight());
  GetClientRect(window_, &client);
  if (!Same(client, wanted)) {
    AdjustWindowRectEx(&wanted, Style, FALSE, Extended);
    SetWindowPos(window_, nullptr, 0, 0, WidthOf(wanted), HeightOf(wanted),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    InvalidateRect(window_, nullptr, TRUE);
  }
  const POINT place = {scale_.ToPixels(form_.Left()), scale_.ToPixels(form_.Top())};
  if (isPlaced_ && place.x == placed_.x && place.y == placed_.y) return;
  isPlaced_ = true;
  placed_ = place;
  SetWindowPos(window_, nullptr, place.x, place.y, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

void FormView::SyncFocus() {
  if (GetActiveWindow() != window_) return;
  // A control on a page that is not in front has no window that could get keys: the form's gets them in its place.
  const ControlView* const view = ViewOf(form_.Focus());
  const HWND inner = view == nullptr ? nullptr : view->FocusWindow();
  const bool inFront = inner != nullptr && IsWindowVisible(inner) != FALSE && IsWindowEnabled(inner) != FALSE;
  const HWND wanted = inFront ? inner : window_;
  if (GetFocus() != wanted) SetFocus(wanted);
}

COLORREF FormView::GroundOf(const Control& control) const {
  const float x = control.Left() + control.Width() / 2, y = control.Top() + control.Height() / 2;
  for (const Control* const one : form_.Controls()) {
    if (one->Kind() != ControlKind::Shape || !one->Visible() || !LiesIn(*one, control.Container(), control.Page())) {
      continue;
    }
    const bool behind =
        x >= one->Left() && x < one->Left() + one->Width() && y >= one->Top() && y < one->Top() + one->Height();
    if (behind) return ColourOf(static_cast<const Shape*>(one)->BackColor());
  }
  const Control* const container = control.Container();
  return container != nullptr && container->Kind() == ControlKind::Frame ? GroundOf(*container)
                                                                         : GetSysColor(COLOR_BTNFACE);
}

LRESULT FormView::Erase(HDC context, HWND window) const {
  const ControlView* const view = ViewOfWindow(window);
  const Control* const container = view == nullptr ? nullptr : &view->Model();
  RECT area;
  GetClientRect(window, &area);
  const bool plain = container == nullptr || container->Kind() == ControlKind::TabStrip;
  const COLORREF ground = plain ? GetSysColor(COLOR_BTNFACE) : GroundOf(*container);
  const HBRUSH brush = CreateSolidBrush(ground);
  FillRect(context, &area, brush);
  DeleteObject(brush);
  for (const Control* const one : form_.Controls()) {
    if (one->Kind() != ControlKind::Shape || !one->Visible() || one->Container() != container) continue;
    if (container != nullptr && view->Inner(one->Page()) != window) continue;
    const RECT place = scale_.PixelRect(*one);
    const HBRUSH filled = CreateSolidBrush(ColourOf(static_cast<const Shape*>(one)->BackColor()));
    FillRect(context, &place, filled);
    DeleteObject(filled);
  }
  return TRUE;
}

LRESULT FormView::Colours(HDC context, HWND child) {
  ControlView* const view = ViewOfWindow(child);
  if (view != nullptr) {
    if (const HBRUSH own = view->Colours(context)) return reinterpret_cast<LRESULT>(own);
  }
  const COLORREF ground = view == nullptr ? GetSysColor(COLOR_BTNFACE) : GroundOf(view->Model());
  SetTextColor(context, GetSysColor(COLOR_BTNTEXT));
  SetBkColor(context, ground);
  return reinterpret_cast<LRESULT>(tools_.Brush(ground));
}

void FormView::Guarded(const std::function<void()>& act) {
  desk_.Contain(act);
  desk_.Contain([this] { desk_.SyncAll(); });
}

void FormView::Carry(const Control& control, const Act& act) {
  if (control.Usable()) CarryOnForm(act);
}

void FormView::CarryOnForm(const Act& act) {
  if (!form_.IsShown()) return;
  Guarded([&] {
    Hand hand(form_);
    act(hand);
  });
}

bool FormView::MouseArrives(ControlView& view, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const MouseMove move = MouseMoveOf(message);
  Control& control = view.Model();
  const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  const std::int16_t button = ButtonOf(message), shift = ShiftOf(wParam);
  const bool left = button == 1;
  if (move == MouseMove::Up) {
    RECT area;
    GetClientRect(window, &area);
    const bool clicked = pressed_ == &control && PtInRect(&area, point) != FALSE;
    pressed_ = nullptr;
    if (clicked && left && !view.ClicksItself()) {
      Carry(control, [&](Hand& hand) { hand.Click(control); });
    }
    return false;
  }
  if (move == MouseMove::DoubleClick && left && control.OnDblClick) {
    Carry(control, [&](Hand& hand) { hand.DblClick(control); });
    return true;
  }
  pressed_ = &control;
  const float x = scale_.ToTwips(point.x), y = scale_.ToTwips(point.y);
  Carry(control, [&](Hand& hand) { hand.MouseDown(control, button, shift, x, y); });
  return false;
}

void FormView::WindowMoved() {
  RECT now;
  GetWindowRect(window_, &now);
  const bool moved = now.left != placed_.x || now.top != placed_.y;
  if (!moved || syncing_ || IsWindowVisible(window_) == FALSE || IsIconic(window_) != FALSE) return;
  placed_ = {now.left, now.top};
  CarryOnForm([&](Hand& hand) { hand.Move(scale_.ToTwips(now.left), scale_.ToTwips(now.top)); });
}

void FormView::Rescale(int dpi, const RECT& place) {
  scale_ = Scale(dpi);
  for (const std::unique_ptr<ControlView>& view : views_) view->Rescaled();
  placed_ = {place.left, place.top};
  SetWindowPos(window_, nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  CarryOnForm([&](Hand& hand) { hand.Move(scale_.ToTwips(place.left), scale_.ToTwips(place.top)); });
  InvalidateRect(window_, nullptr, TRUE);
}

}  // namespace plexel

#include "host/host_window.h"

#include <algorithm>
#include <utility>

#include "host/language_offer.h"
#include "win32/pictures.h"
#include "win32/scale.h"

namespace plexel::host {

namespace {

constexpr const wchar_t* Kind = L"PlexelHost";
constexpr int Width = 1040, Height = 860, ListHeight = 130, IconSide = 32;  ///< logical pixels

HFONT MessageFont(int dpi) {
  NONCLIENTMETRICSW metrics = {};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, static_cast<UINT>(dpi));
  return CreateFontIndirectW(&metrics.lfMessageFont);
}

/// A place of a size that lies on the desktop.
RECT OnDesktop(int width, int height) {
  RECT desktop{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &desktop, 0);
  return {desktop.left, desktop.top, desktop.left + std::min(width, WidthOf(desktop)),
          desktop.top + std::min(height, HeightOf(desktop))};
}

}  // namespace

HostWindow::HostWindow(FileSurroundings& surroundings)
    : surroundings_(surroundings), texts_(surroundings.Language()), container_(new Container) {
  const int dpi = static_cast<int>(GetDpiForSystem());
  const Scale scale(dpi);
  Make(Kind, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, OnDesktop(scale.Of(Width), scale.Of(Height)), nullptr);
  dpi_ = static_cast<int>(GetDpiForWindow(Handle()));
  panel_ = std::make_unique<PanelWindow>(Handle());
  events_ = std::make_unique<EventList>(Handle());
  icon_ = PictureIcon("plexel", Scale(dpi_).Of(IconSide));
  SendMessageW(Handle(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon_));
  Connect();
  MakeMenus();
  Rescale(dpi_, {});
}

HostWindow::~HostWindow() {
  Leave();
  container_->Leave();
  panel_.reset();
  Destroy();
  if (shortcuts_ != nullptr) DestroyAcceleratorTable(shortcuts_);
  if (font_ != nullptr) DeleteObject(font_);
  if (icon_ != nullptr) DestroyIcon(icon_);
}

void HostWindow::Connect() {
  container_->frame = Handle();
  container_->ground = panel_->Ground();
  container_->language = new LanguageOffer(surroundings_.Language());
  container_->ledIsDefined = [this](LONG type, LONG layer) {
    return project_ != nullptr && project_->LedIsDefined(type, layer);
  };
  container_->heard = [this](const std::string& place, const ElementEvent& event) { Heard(place, event); };
  container_->gotKeys = [this](const std::string& place) { GotKeys(place); };
  container_->offeredKey = [this](const std::string& place, const MSG& message) { return OfferedKey(place, message); };
}

int HostWindow::Run(const std::filesystem::path& file) {
  ShowWindow(Handle(), SW_SHOWNORMAL);
  TellFilesDamaged();
  if (file.empty() || !OpenProject(file)) StartEmpty();
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (TakesKey(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return static_cast<int>(message.wParam);
}

/// A key goes to the control that has them, then to the menus, then from the list back to the panel.
bool HostWindow::TakesKey(MSG& message) {
  if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST || Handle() == nullptr) return false;
  const auto active = container_->Active();
  if (active && message.hwnd != events_->Handle() && active->TranslateAccelerator(&message) == S_OK) return true;
  if (TranslateAcceleratorW(Handle(), shortcuts_, &message) != 0) return true;
  if (message.message != WM_KEYDOWN || message.wParam != VK_TAB || message.hwnd != events_->Handle()) return false;
  TakeKeys(current_);
  return true;
}

LRESULT HostWindow::Message(UINT message, WPARAM wide, LPARAM wider) {
  switch (message) {
    case WM_ERASEBKGND:
      return Fill(wide, COLOR_BTNFACE);
    case WM_SIZE:
      LayOut();
      return 0;
    case WM_SETFOCUS:
      TakeKeys(current_);
      return 0;
    case WM_COMMAND:
      if (HIWORD(wide) <= 1 && wider == 0) Command(LOWORD(wide));  // of a menu, or a shortcut
      return 0;
    case OpenMessage:
      OpenDialog(wide, false);
      return 0;
    case WM_DPICHANGED:
      Rescale(HIWORD(wide), *reinterpret_cast<const RECT*>(wider));
      return 0;
    case WM_QUERYENDSESSION:
      return !IsBusy() && MayLeave() ? TRUE : FALSE;
    case WM_CLOSE:
      if (IsBusy() || !MayLeave()) return 0;
      Leave();
      Destroy();
      return 0;
    case WM_DESTROY:
      container_->ground = container_->frame = nullptr;
      PostQuitMessage(0);
      return 0;
    default:
      return AsUsual(message, wide, wider);
  }
}

void HostWindow::LayOut() {
  if (events_ == nullptr) return;
  const RECT inside = Inside();
  const int list = std::min<int>(Scale(dpi_).Of(ListHeight), inside.bottom / 2);
  MoveWindow(panel_->Handle(), 0, 0, inside.right, inside.bottom - list, TRUE);
  MoveWindow(events_->Handle(), 0, inside.bottom - list, inside.right, list, TRUE);
}

void HostWindow::Rescale(int dpi, const RECT& place) {
  dpi_ = dpi;
  const HFONT before = std::exchange(font_, MessageFont(dpi_));
  SendMessageW(events_->Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font_), TRUE);
  if (before != nullptr) DeleteObject(before);
  if (!IsEmpty(place)) {
    SetWindowPos(Handle(), nullptr, place.left, place.top, WidthOf(place), HeightOf(place),
                 SWP_NOZORDER | SWP_NOACTIVATE);
  }
  PlaceControls();
  LayOut();
}

}  // namespace plexel::host

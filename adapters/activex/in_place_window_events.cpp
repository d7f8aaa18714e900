#include "activex/in_place_window.h"

#include <ocidl.h>
#include <olectl.h>
#include <windowsx.h>

#include <array>

#include "activex/dispatch_call.h"
#include "activex/surface_painter.h"
#include "activex/units.h"

namespace plexel::activex {

namespace {

constexpr std::int16_t Left = 1, Right = 2, Middle = 4;
constexpr std::int16_t Shift = 1, Ctrl = 2, Alt = 4;

std::int16_t KeysOf(WPARAM keys) {
  int held = 0;
  if ((keys & MK_SHIFT) != 0) held |= Shift;
  if ((keys & MK_CONTROL) != 0) held |= Ctrl;
  if (GetKeyState(VK_MENU) < 0) held |= Alt;
  return static_cast<std::int16_t>(held);
}

/// A picture in memory that goes onto a window at once.
class Picture {
 public:
  Picture(HDC device, SIZE size)
      : device_(device),
        size_(size),
        memory_(CreateCompatibleDC(device)),
        bits_(CreateCompatibleBitmap(device, size.cx, size.cy)),
        before_(SelectObject(memory_, bits_)) {}
  ~Picture() {
    BitBlt(device_, 0, 0, size_.cx, size_.cy, memory_, 0, 0, SRCCOPY);
    SelectObject(memory_, before_);
    DeleteObject(bits_);
    DeleteDC(memory_);
  }
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;
  HDC Device() const { return memory_; }

 private:
  HDC device_;
  SIZE size_;
  HDC memory_;
  HBITMAP bits_;
  HGDIOBJ before_;
};

/// The colour that the container has behind its controls.
COLORREF AmbientGround(IOleClientSite* site) {
  Variant value, number;
  COLORREF colour = GetSysColor(COLOR_BTNFACE);
  const auto ambient = As<IDispatch>(site);
  if (ambient && FetchProperty(*ambient.Get(), DISPID_AMBIENT_BACKCOLOR, value) &&
      SUCCEEDED(VariantChangeType(&number.Get(), &value.Get(), 0, VT_I4))) {
    OleTranslateColor(static_cast<OLE_COLOR>(V_I4(&number.Get())), nullptr, &colour);
  }
  return colour;
}

}  // namespace

LRESULT CALLBACK InPlaceWindow::Procedure(HWND window, UINT message, WPARAM wide, LPARAM wider) {
  if (message == WM_NCCREATE) {
    auto* const made = static_cast<InPlaceWindow*>(reinterpret_cast<CREATESTRUCTW*>(wider)->lpCreateParams);
    made->window_ = window;
    made->control_.LookWhoSees();
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
  }
  auto* const self = reinterpret_cast<InPlaceWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wide, wider);
  if (message == WM_NCDESTROY) {
    self->window_ = nullptr;
    self->control_.LookWhoSees();
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    return DefWindowProcW(window, message, wide, wider);
  }
  LRESULT answer = 0;
  // The control may be gone when this returns.
  const HRESULT handled = self->control_.Run("a window's event", [&] {
    bool known = true;
    answer = self->Handle(message, wide, wider, known);
    return known ? S_OK : S_FALSE;
  });
  return handled == S_FALSE ? DefWindowProcW(window, message, wide, wider) : answer;
}

LRESULT InPlaceWindow::Handle(UINT message, WPARAM wide, LPARAM wider, bool& known) {
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      Paint();
      return 0;
    case WM_PRINTCLIENT:
      PaintOn(reinterpret_cast<HDC>(wide));
      return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      Focus(message == WM_SETFOCUS);
      return 0;
    case WM_GETDLGCODE:
      return DLGC_WANTCHARS | (wide == VK_RETURN ? DLGC_WANTMESSAGE : 0);
    case WM_CHAR:
      control_.RunDialog([&] { control_.TheElement().UserControl_KeyPress(static_cast<std::int16_t>(wide)); });
      return 0;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
      MouseDown();
      return 0;
    case WM_LBUTTONUP:
      MouseUp(Left, wide, wider);
      return 0;
    case WM_RBUTTONUP:
      MouseUp(Right, wide, wider);
      return 0;
    case WM_MBUTTONUP:
      MouseUp(Middle, wide, wider);
      return 0;
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK:
      MouseDown();
      control_.TheElement().UserControl_DblClick();
      return 0;
    default:
      known = false;
      return 0;
  }
}

/// What is pressed gets the keys, unless the container keeps them.
void InPlaceWindow::MouseDown() {
  if (const auto site = Site(); site && GetFocus() != window_) (void)ActivateInterface(*site.Get());
  if (window_ != nullptr) SetCapture(window_);  // the container may have taken it away
}

void InPlaceWindow::MouseUp(std::int16_t button, WPARAM keys, LPARAM place) {
  if ((keys & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON)) == 0) ReleaseCapture();
  Screen& screen = Platform::Current().TheScreen();
  control_.TheElement().UserControl_MouseUp(button, KeysOf(keys),
                                            static_cast<float>(GET_X_LPARAM(place)) * screen.TwipsPerPixelX(),
                                            static_cast<float>(GET_Y_LPARAM(place)) * screen.TwipsPerPixelY());
}

void InPlaceWindow::Focus(bool got) {
  if (const auto site = As<IOleControlSite>(control_.Site())) site->OnFocus(got ? TRUE : FALSE);
  if (window_ == nullptr) return;
  if (!got) return control_.TheElement().UserControl_LostFocus();
  if (const auto site = Site(); site && !hasKeys_) (void)ActivateInterface(*site.Get());
  control_.TheElement().UserControl_GotFocus();
}

void InPlaceWindow::Paint() {
  PAINTSTRUCT paint;
  if (HDC device = BeginPaint(window_, &paint); device != nullptr) PaintOn(device);
  EndPaint(window_, &paint);
}

void InPlaceWindow::PaintOn(HDC device) {
  RECT area{};
  GetClientRect(window_, &area);
  if (IsRectEmpty(&area) != FALSE) return;
  const Picture picture(device, {area.right, area.bottom});
  PaintGround(picture.Device(), area);
  Screen& screen = Platform::Current().TheScreen();
  const Canvas canvas{picture.Device(),
                      {},
                      1 / static_cast<double>(screen.TwipsPerPixelX()),
                      1 / static_cast<double>(screen.TwipsPerPixelY()),
                      1};
  DrawSurface(canvas, control_.TheElement().SurfaceObjects());
}

/// The container's colour, and over it what the window around shows here: the marks stand on its picture.
void InPlaceWindow::PaintGround(HDC device, const RECT& area) {
  HBRUSH ground = CreateSolidBrush(AmbientGround(control_.Site()));
  FillRect(device, &area, ground);
  DeleteObject(ground);
  HWND around = GetParent(window_);
  if (around == nullptr) return;
  POINT corner{};
  MapWindowPoints(window_, around, &corner, 1);
  const int state = SaveDC(device);
  OffsetViewportOrgEx(device, -corner.x, -corner.y, nullptr);
  SendMessageW(around, WM_ERASEBKGND, reinterpret_cast<WPARAM>(device), 0);
  SendMessageW(around, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(device), PRF_CLIENT);
  RestoreDC(device, state);
}

}  // namespace plexel::activex

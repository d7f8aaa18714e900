#include "host/panel_window.h"

#include <algorithm>
#include <utility>

#include "win32/scale.h"

namespace plexel::host {

namespace {

constexpr const wchar_t* GroundKind = L"PlexelHost.Ground";
constexpr const wchar_t* PanelKind = L"PlexelHost.Panel";
constexpr int Line = 40;  ///< pixels of a step

int PositionOf(HWND window, int bar) { return GetScrollPos(window, bar); }

}  // namespace

GroundWindow::GroundWindow(HWND parent) {
  Make(GroundKind, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, {0, 0, 0, 0}, parent);
}

void GroundWindow::Show(std::unique_ptr<PanelPicture> picture) {
  picture_ = std::move(picture);
  InvalidateRect(Handle(), nullptr, TRUE);
}

SIZE GroundWindow::Size() const { return picture_ == nullptr ? SIZE{0, 0} : picture_->Size(); }

LRESULT GroundWindow::Message(UINT message, WPARAM wide, LPARAM wider) {
  switch (message) {
    case WM_ERASEBKGND:
      return 1;  // the picture covers all of it
    case WM_PAINT: {
      PAINTSTRUCT paint;
      const HDC device = BeginPaint(Handle(), &paint);
      if (device != nullptr && picture_ != nullptr) picture_->DrawOn(device);
      EndPaint(Handle(), &paint);
      return 0;
    }
    case WM_PRINTCLIENT:  // controls show the picture below them so
      if (picture_ != nullptr) picture_->DrawOn(reinterpret_cast<HDC>(wide));
      return 0;
    default:
      return AsUsual(message, wide, wider);
  }
}

PanelWindow::PanelWindow(HWND parent) {
  Make(PanelKind, WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL | WS_CLIPCHILDREN, {0, 0, 0, 0}, parent);
  ground_ = std::make_unique<GroundWindow>(Handle());
}

void PanelWindow::Show(std::unique_ptr<PanelPicture> picture) {
  ground_->Show(std::move(picture));
  for (const int bar : {SB_HORZ, SB_VERT}) SetScrollPos(Handle(), bar, 0, FALSE);
  LayOut();
}

LRESULT PanelWindow::Message(UINT message, WPARAM wide, LPARAM wider) {
  switch (message) {
    case WM_ERASEBKGND:
      return Fill(wide, COLOR_APPWORKSPACE);
    case WM_SIZE:
      if (ground_ != nullptr) LayOut();
      return 0;
    case WM_HSCROLL:
      Scroll(SB_HORZ, LOWORD(wide));
      return 0;
    case WM_VSCROLL:
      Scroll(SB_VERT, LOWORD(wide));
      return 0;
    case WM_MOUSEWHEEL:
      Wheel(SB_VERT, -GET_WHEEL_DELTA_WPARAM(wide));
      return 0;
    case WM_MOUSEHWHEEL:
      Wheel(SB_HORZ, GET_WHEEL_DELTA_WPARAM(wide));
      return 0;
    default:
      return AsUsual(message, wide, wider);
  }
}

void PanelWindow::LayOut() {
  if (layingOut_) return;  // a bar that comes or goes changes the size
  layingOut_ = true;
  const SIZE whole = ground_->Size();
  for (int round = 0; round < 2; ++round) {  // one bar may call for the other
    LayOut(SB_HORZ, Inside().right, whole.cx);
    LayOut(SB_VERT, Inside().bottom, whole.cy);
  }
  layingOut_ = false;
  const RECT inside = Inside();
  const int left = std::max<LONG>(0, (inside.right - whole.cx) / 2),
            top = std::max<LONG>(0, (inside.bottom - whole.cy) / 2);
  SetWindowPos(ground_->Handle(), nullptr, left - PositionOf(Handle(), SB_HORZ), top - PositionOf(Handle(), SB_VERT),
               whole.cx, whole.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

void PanelWindow::LayOut(int bar, int inside, int whole) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_PAGE | SIF_RANGE;
  info.nMax = std::max(0, whole - 1);
  info.nPage = static_cast<UINT>(std::max(0, inside));
  SetScrollInfo(Handle(), bar, &info, TRUE);
}

void PanelWindow::Scroll(int bar, int code) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(Handle(), bar, &info);
  const int page = static_cast<int>(info.nPage);
  switch (code) {
    case SB_LINEUP:
      return ScrollTo(bar, info.nPos - Line);
    case SB_LINEDOWN:
      return ScrollTo(bar, info.nPos + Line);
    case SB_PAGEUP:
      return ScrollTo(bar, info.nPos - page);
    case SB_PAGEDOWN:
      return ScrollTo(bar, info.nPos + page);
    case SB_THUMBTRACK:
      return ScrollTo(bar, info.nTrackPos);
    default:
      return;
  }
}

void PanelWindow::Wheel(int bar, int turned) {
  ScrollTo(bar, PositionOf(Handle(), bar) + MulDiv(turned, Line, WHEEL_DELTA));
}

void PanelWindow::ScrollTo(int bar, int position) {
  SetScrollPos(Handle(), bar, position, TRUE);
  LayOut();
}

void PanelWindow::Reveal(const RECT& place) {
  const RECT inside = Inside();
  const auto reveal = [this](int bar, int from, int to, int length) {
    const int position = PositionOf(Handle(), bar);
    if (from < position) return ScrollTo(bar, from);
    if (to > position + length) ScrollTo(bar, to - length);
  };
  reveal(SB_HORZ, place.left, place.right, inside.right);
  reveal(SB_VERT, place.top, place.bottom, inside.bottom);
}

}  // namespace plexel::host

#include "win32/grid_view.h"

#include <windowsx.h>

#include <algorithm>
#include <cstdlib>

#include "win32/grid_accessible.h"
#include "win32/mouse_buttons.h"
#include "win32/wide_text.h"

namespace plexel {

namespace {

constexpr int EdgeReach = 3, CellMargin = 4;  // logical pixels

void DrawEdge(HDC context, int fromX, int fromY, int toX, int toY) {
  MoveToEx(context, fromX, fromY, nullptr);
  LineTo(context, toX, toY);
}

bool Contains(const RECT& rect, POINT point) { return PtInRect(&rect, point) != FALSE; }

}  // namespace

GridView::GridView(Grid& model, HWND parent, ViewFrame& frame) : ControlView(model, frame), model_(model) {
  Make(parent, GridClass, 0);
}

GridView::~GridView() {
  if (accessible_ == nullptr) return;
  accessible_->Detach();
  accessible_->Release();
}

void GridView::SyncMore() {
  if (!model_.Redraw()) return;
  GridShot shot = GridShot::Of(model_);
  if (taken_ && shot == shot_) return;
  taken_ = true;
  std::swap(shot, shot_);
  SyncScrollBars();
  InvalidateRect(Outer(), nullptr, FALSE);
  TellReaders(shot);
}

void GridView::TellReaders(const GridShot& before) const {
  const LONG child = shot_.row * shot_.Cols() + shot_.col + 1;
  const bool moved = before.row != shot_.row || before.col != shot_.col || before.focus != shot_.focus;
  if (moved && shot_.focus) NotifyWinEvent(EVENT_OBJECT_FOCUS, Outer(), OBJID_CLIENT, child);
  for (int row = 0; row < static_cast<int>(std::min(before.cells.size(), shot_.cells.size())); ++row) {
    const auto& old = before.cells[static_cast<std::size_t>(row)];
    const auto& now = shot_.cells[static_cast<std::size_t>(row)];
    for (std::size_t col = 0; col < std::min(old.size(), now.size()); ++col) {
      if (old[col].text == now[col].text) continue;
      NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, Outer(), OBJID_CLIENT, row * shot_.Cols() + static_cast<LONG>(col) + 1);
    }
  }
}

void GridView::SyncScrollBars() {
  const auto set = [this](int bar, bool shown, int last, int page, int place) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = shown ? last : 0;
    info.nPage = static_cast<UINT>(page);
    info.nPos = place;
    SetScrollInfo(Outer(), bar, &info, TRUE);
    const LONG style = bar == SB_VERT ? WS_VSCROLL : WS_HSCROLL;
    if (((GetWindowLongW(Outer(), GWL_STYLE) & style) != 0) != shown) ShowScrollBar(Outer(), bar, shown ? TRUE : FALSE);
  };
  const bool tall = shot_.IsTall(), wide = shot_.IsWide();
  set(SB_VERT, tall, shot_.Rows() - shot_.fixedRows - 1, shot_.rowsInView, shot_.topRow - shot_.fixedRows);
  // Without room under the rows the keys and the wheel alone scroll sideways.
  const bool room = tall || Host().Measure().ToPixels(shot_.HeightBelow()) >= GetSystemMetrics(SM_CYHSCROLL);
  set(SB_HORZ, wide && room, shot_.Cols() - shot_.fixedCols - 1, 1, shot_.leftCol - shot_.fixedCols);
}

RECT GridView::CellRect(int row, int col) const {
  const GridPlace place = shot_.PlaceOf(row, col);
  return place.IsEmpty() ? RECT{} : Host().Measure().PixelRect(place.left, place.top, place.width, place.height);
}

void GridView::Paint() {
  PAINTSTRUCT paint;
  const HDC screen = BeginPaint(Outer(), &paint);
  RECT area;
  GetClientRect(Outer(), &area);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, std::max(1, WidthOf(area)), std::max(1, HeightOf(area)));
  const HGDIOBJ before = SelectObject(memory, bitmap);
  Draw(memory, area);
  BitBlt(screen, 0, 0, WidthOf(area), HeightOf(area), memory, 0, 0, SRCCOPY);
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  EndPaint(Outer(), &paint);
}

void GridView::Draw(HDC context, const RECT& area) {
  FillRect(context, &area, GetSysColorBrush(COLOR_WINDOW));
  const int state = SaveDC(context);
  SelectObject(context, Host().Tools().Font(Look(), Host().Measure()));
  SelectObject(context, GetStockObject(DC_PEN));
  SetBkMode(context, TRANSPARENT);
  for (int row = 0; row < shot_.Rows(); ++row) {
    for (int col = 0; col < shot_.Cols(); ++col) {
      const RECT place = CellRect(row, col);
      if (!IsEmpty(place)) DrawCell(context, row, col, place);
    }
  }
  RestoreDC(context, state);
  FrameRect(context, &area, GetSysColorBrush(COLOR_BTNSHADOW));
}

void GridView::DrawCell(HDC context, int row, int col, const RECT& place) {
  const GridCell& cell = shot_.At(row, col);
  const bool fixed = shot_.IsFixed(row, col);
  FillRect(context, &place, fixed ? GetSysColorBrush(COLOR_BTNFACE) : Host().Tools().Brush(ColourOf(cell.backColor)));
  SetDCPenColor(context, GetSysColor(fixed ? COLOR_BTNSHADOW : COLOR_3DLIGHT));
  DrawEdge(context, place.right - 1, place.top, place.right - 1, place.bottom);
  DrawEdge(context, place.left, place.bottom - 1, place.right, place.bottom - 1);
  if (!fixed && shot_.IsCurrent(row, col)) {
    const HBRUSH mark = GetSysColorBrush(shot_.focus ? COLOR_HIGHLIGHT : COLOR_BTNSHADOW);
    RECT frame = place;
    for (int line = 0; line < Host().Measure().Of(2); ++line) {
      FrameRect(context, &frame, mark);
      InflateRect(&frame, -1, -1);
    }
  }
  SetTextColor(context, shot_.enabled ? ColourOf(cell.foreColor) : GetSysColor(COLOR_GRAYTEXT));
  const std::wstring text = TextAt(row, col);
  constexpr UINT Line = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;
  RECT inner = cell.centred ? place : TextRect(row, col);
  if (cell.centred) {
    DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &inner, Line | DT_CENTER);
    return;
  }
  RECT needed = {};
  DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &needed, Line | DT_CALCRECT);
  if (!shot_.ShowsEnd(row, col) || WidthOf(needed) <= WidthOf(inner)) {
    DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &inner, Line | DT_END_ELLIPSIS);
    return;
  }
  // The beginning gives way to the end.
  std::wstring cut = text;
  do {
    cut = L"\u2026" + cut.substr(cut.front() == L'\u2026' ? 2 : 1);
    needed = {};
    DrawTextW(context, cut.c_str(), static_cast<int>(cut.size()), &needed, Line | DT_CALCRECT);
  } while (cut.size() > 2 && WidthOf(needed) > WidthOf(inner));
  DrawTextW(context, cut.c_str(), static_cast<int>(cut.size()), &inner, Line);
}

std::wstring GridView::TextAt(int row, int col) const { return WithVisibleControls(Wide(shot_.At(row, col).text)); }

RECT GridView::TextRect(int row, int col) const {
  RECT rect = CellRect(row, col);
  InflateRect(&rect, -Host().Measure().Of(CellMargin), 0);
  return rect;
}

GridView::Spot GridView::SpotAt(POINT point) const {
  for (int row = 0; row < shot_.Rows(); ++row) {
    for (int col = 0; col < shot_.Cols(); ++col) {
      if (Contains(CellRect(row, col), point)) return {row, col};
    }
  }
  return {};
}

int GridView::EdgeAt(POINT point) const {
  if (!model_.UserResizing() || shot_.fixedRows == 0 || point.y >= CellRect(0, 0).bottom) return -1;
  for (int col = shot_.Cols() - 1; col >= 0; --col) {
    const RECT place = CellRect(0, col);
    if (!IsEmpty(place) && std::abs(place.right - point.x) <= Host().Measure().Of(EdgeReach)) return col;
  }
  return -1;
}

void GridView::GoTo(int row, int col) {
  Host().Carry(model_, [&](Hand& hand) { hand.Cell(model_, row, col); });
}

void GridView::DoubleClick(int row, int col) {
  Host().Carry(model_, [&](Hand& hand) { hand.DblClick(model_, row, col); });
}

void GridView::ScrollTo(int topRow, int leftCol) {
  Host().Carry(model_, [&](Hand& hand) { hand.Scroll(model_, topRow, leftCol); });
}

void GridView::Pressed(UINT message, WPARAM keys, POINT point) {
  const std::int16_t button = ButtonOf(message);
  const bool left = button == 1;
  const int edge = left ? EdgeAt(point) : -1;
  const Spot spot = SpotAt(point);
  if (MouseMoveOf(message) == MouseMove::DoubleClick && left) {
    if (edge >= 0) return;
    if (spot.OnCell()) return DoubleClick(spot.row, spot.col);
    return Host().Carry(model_, [&](Hand& hand) { hand.DblClick(model_); });
  }
  if (edge >= 0) {
    resizedCol_ = edge;
    resizeFrom_ = point.x;
    resizeWidth_ = shot_.widths[static_cast<std::size_t>(edge)];
    SetCapture(Outer());
    return;
  }
  const float x = Host().Measure().ToTwips(point.x), y = Host().Measure().ToTwips(point.y);
  const std::int16_t shift = ShiftOf(keys);
  Host().Carry(model_, [&](Hand& hand) { hand.MouseDown(model_, button, shift, x, y); });
  if (left && spot.OnCell()) {
    Host().Carry(model_, [&](Hand& hand) { hand.Click(model_, spot.row, spot.col); });
  }
}

void GridView::Moved(POINT point) {
  if (resizedCol_ < 0) return;
  const int change = static_cast<int>(Host().Measure().ToTwips(point.x - resizeFrom_));
  const int width = shot_.WidthWithin(resizedCol_, resizeWidth_ + change);
  Host().Carry(model_, [&](Hand& hand) { hand.ResizeColumn(model_, resizedCol_, width); });
}

void GridView::Wheel(WPARAM wParam) {
  constexpr int RowsOfStep = 3;
  const int turned = GET_WHEEL_DELTA_WPARAM(wParam);
  const bool tall = shot_.IsTall();
  const bool sideways = (GET_KEYSTATE_WPARAM(wParam) & MK_SHIFT) != 0 || !tall;
  const int steps = sideways ? turned / WHEEL_DELTA : turned * RowsOfStep / WHEEL_DELTA;
  if (steps == 0) return;
  ScrollTo(model_.TopRow() - (sideways ? 0 : steps), model_.LeftCol() - (sideways ? steps : 0));
}

void GridView::ScrollBar(int bar, int request) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(Outer(), bar, &info);
  int place = info.nPos;
  switch (request) {
    case SB_LINEUP:
      --place;
      break;
    case SB_LINEDOWN:
      ++place;
      break;
    case SB_PAGEUP:
      place -= static_cast<int>(info.nPage);
      break;
    case SB_PAGEDOWN:
      place += static_cast<int>(info.nPage);
      break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      place = info.nTrackPos;
      break;
    case SB_TOP:
      place = 0;
      break;
    case SB_BOTTOM:
      place = info.nMax;
      break;
    default:
      return;
  }
  place = std::clamp(place, 0, info.nMax);
  if (bar == SB_VERT) {
    ScrollTo(model_.FixedRows() + place, model_.LeftCol());
  } else {
    ScrollTo(model_.TopRow(), model_.FixedCols() + place);
  }
}

std::optional<LRESULT> GridView::Ahead(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  switch (MouseMoveOf(message)) {
    case MouseMove::Down:
    case MouseMove::DoubleClick:
      Pressed(message, wParam, point);
      return 0;
    case MouseMove::Up:
      if (resizedCol_ >= 0) ReleaseCapture();
      return 0;
    case MouseMove::None:
      break;
  }
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_ERASEBKGND:
      return TRUE;
    case WM_GETOBJECT:
      if (static_cast<LONG>(lParam) != OBJID_CLIENT) return std::nullopt;
      if (accessible_ == nullptr) accessible_ = new GridAccessible(*this);
      return LresultFromObject(__uuidof(IAccessible), wParam, accessible_);
    case WM_MOUSEMOVE:
      Moved(point);
      return 0;
    case WM_CAPTURECHANGED:
      resizedCol_ = -1;
      return 0;
    case WM_MOUSEWHEEL:
      Wheel(wParam);
      return 0;
    case WM_VSCROLL:
    case WM_HSCROLL:
      ScrollBar(message == WM_VSCROLL ? SB_VERT : SB_HORZ, LOWORD(wParam));
      return 0;
    case WM_SETCURSOR: {
      POINT mouse;
      GetCursorPos(&mouse);
      ScreenToClient(window, &mouse);
      if (LOWORD(lParam) != HTCLIENT || EdgeAt(mouse) < 0) return std::nullopt;
      SetCursor(LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_SIZEWE)));
      return TRUE;
    }
    default:
      return std::nullopt;
  }
}

std::wstring GridView::ToolTipAt(POINT point) const {
  const Spot spot = SpotAt(point);
  if (!spot.OnCell()) return ControlView::ToolTipAt(point);
  const std::wstring text = TextAt(spot.row, spot.col);
  const HDC context = GetDC(Outer());
  const HGDIOBJ before = SelectObject(context, Host().Tools().Font(Look(), Host().Measure()));
  SIZE size = {};
  GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
  SelectObject(context, before);
  ReleaseDC(Outer(), context);
  return size.cx > WidthOf(TextRect(spot.row, spot.col)) ? text : ControlView::ToolTipAt(point);
}

}  // namespace plexel

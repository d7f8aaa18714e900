#include "win32/grid_accessible.h"

#include "forms/caption.h"
#include "win32/bstr.h"
#include "win32/grid_view.h"
#include "win32/wide_text.h"

namespace plexel {

namespace {

bool IsItself(const VARIANT& child) { return child.lVal == CHILDID_SELF; }

HRESULT Give(const std::wstring& text, BSTR* given) {
  *given = NewBstr(text);
  return S_OK;
}

HRESULT Give(LONG number, VARIANT* given) {
  given->vt = VT_I4;
  given->lVal = number;
  return S_OK;
}

HRESULT GiveNothing(VARIANT* given) {
  given->vt = VT_EMPTY;
  return S_FALSE;
}

/// Runs what answers a call: nothing is thrown through it.
template <typename Answer>
HRESULT Guarded(const Answer& answer) noexcept {
  try {
    return answer();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_FAIL;
  }
}

}  // namespace

HRESULT GridAccessible::QueryInterface(REFIID wanted, void** given) {
  if (given == nullptr) return E_POINTER;
  const bool known = wanted == __uuidof(IUnknown) || wanted == __uuidof(IDispatch) || wanted == __uuidof(IAccessible);
  *given = known ? static_cast<IAccessible*>(this) : nullptr;
  if (known) AddRef();
  return known ? S_OK : E_NOINTERFACE;
}

ULONG GridAccessible::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT GridAccessible::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT GridAccessible::Nothing(BSTR* text) {
  if (text == nullptr) return E_POINTER;
  *text = nullptr;
  return S_FALSE;
}

HRESULT GridAccessible::Check(const VARIANT& child) const {
  if (view_ == nullptr) return CO_E_OBJNOTCONNECTED;
  const Grid& grid = view_->Cells();
  const bool known = child.vt == VT_I4 && child.lVal >= 0 && child.lVal <= grid.Rows() * grid.Cols();
  return known ? S_OK : E_INVALIDARG;
}

GridAccessible::Cell GridAccessible::CellOf(const VARIANT& child) const {
  const int place = static_cast<int>(child.lVal) - 1;
  return {place / view_->Cells().Cols(), place % view_->Cells().Cols()};
}

LONG GridAccessible::NumberOf(int row, int col) const { return row * view_->Cells().Cols() + col + 1; }

HRESULT GridAccessible::get_accParent(IDispatch** parent) {
  if (parent == nullptr) return E_POINTER;
  *parent = nullptr;
  if (view_ == nullptr) return CO_E_OBJNOTCONNECTED;
  return AccessibleObjectFromWindow(view_->Outer(), static_cast<DWORD>(OBJID_WINDOW), __uuidof(IDispatch),
                                    reinterpret_cast<void**>(parent));
}

HRESULT GridAccessible::get_accChildCount(LONG* count) {
  if (count == nullptr) return E_POINTER;
  if (view_ == nullptr) return CO_E_OBJNOTCONNECTED;
  *count = view_->Cells().Rows() * view_->Cells().Cols();
  return S_OK;
}

/// Cells are no objects of their own.
HRESULT GridAccessible::get_accChild(VARIANT child, IDispatch** given) {
  if (given == nullptr) return E_POINTER;
  *given = nullptr;
  const HRESULT checked = Check(child);
  return FAILED(checked) ? checked : S_FALSE;
}

/// A cell is named by its headers, the grid by its label.
std::wstring GridAccessible::NameOf(const VARIANT& child) const {
  const Grid& grid = view_->Cells();
  if (!IsItself(child)) {
    const auto [row, col] = CellOf(child);
    if (grid.IsFixed(row, col) || (grid.FixedRows() == 0 && grid.FixedCols() == 0)) return view_->TextAt(row, col);
    std::wstring name = grid.FixedCols() > 0 ? view_->TextAt(0, 0) + L" " + std::to_wstring(row) : std::wstring();
    if (grid.FixedRows() > 0) name += (name.empty() ? L"" : L", ") + view_->TextAt(0, col);
    return name;
  }
  for (const Control* const control : grid.Owner().Controls()) {
    if (control->Kind() != ControlKind::Label) continue;
    const auto& label = static_cast<const Label&>(*control);
    if (label.Names() == &grid) return Wide(ReadCaption(label.Caption()).text);
  }
  return {};
}

HRESULT GridAccessible::get_accName(VARIANT child, BSTR* name) {
  if (name == nullptr) return E_POINTER;
  *name = nullptr;
  const HRESULT checked = Check(child);
  return FAILED(checked) ? checked : Guarded([&] { return Give(NameOf(child), name); });
}

HRESULT GridAccessible::get_accValue(VARIANT child, BSTR* value) {
  if (value == nullptr) return E_POINTER;
  *value = nullptr;
  const HRESULT checked = Check(child);
  if (FAILED(checked) || IsItself(child)) return FAILED(checked) ? checked : S_FALSE;
  return Guarded([&] {
    const auto [row, col] = CellOf(child);
    return Give(view_->TextAt(row, col), value);
  });
}

HRESULT GridAccessible::get_accRole(VARIANT child, VARIANT* role) {
  if (role == nullptr) return E_POINTER;
  const HRESULT checked = Check(child);
  if (FAILED(checked)) return checked;
  if (IsItself(child)) return Give(ROLE_SYSTEM_TABLE, role);
  const auto [row, col] = CellOf(child);
  const Grid& grid = view_->Cells();
  if (row < grid.FixedRows()) return Give(ROLE_SYSTEM_COLUMNHEADER, role);
  return Give(col < grid.FixedCols() ? ROLE_SYSTEM_ROWHEADER : ROLE_SYSTEM_CELL, role);
}

HRESULT GridAccessible::get_accState(VARIANT child, VARIANT* state) {
  if (state == nullptr) return E_POINTER;
  const HRESULT checked = Check(child);
  if (FAILED(checked)) return checked;
  const Grid& grid = view_->Cells();
  LONG bits = grid.Usable() ? 0 : STATE_SYSTEM_UNAVAILABLE;
  if (IsItself(child)) {
    return Give(bits | STATE_SYSTEM_FOCUSABLE | (grid.HasFocus() ? STATE_SYSTEM_FOCUSED : 0), state);
  }
  const auto [row, col] = CellOf(child);
  if (!grid.IsFixed(row, col)) bits |= STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE;
  if (row == grid.Row() && col == grid.Col()) {
    bits |= STATE_SYSTEM_SELECTED | (grid.HasFocus() ? STATE_SYSTEM_FOCUSED : 0);
  }
  if (IsEmpty(view_->CellRect(row, col))) bits |= STATE_SYSTEM_INVISIBLE;
  return Give(bits, state);
}

HRESULT GridAccessible::get_accFocus(VARIANT* child) {
  if (child == nullptr) return E_POINTER;
  if (view_ == nullptr) return CO_E_OBJNOTCONNECTED;
  return view_->Cells().HasFocus() ? get_accSelection(child) : GiveNothing(child);
}

HRESULT GridAccessible::get_accSelection(VARIANT* child) {
  if (child == nullptr) return E_POINTER;
  if (view_ == nullptr) return CO_E_OBJNOTCONNECTED;
  return Give(NumberOf(view_->Cells().Row(), view_->Cells().Col()), child);
}

HRESULT GridAccessible::accSelect(LONG how, VARIANT child) {
  const HRESULT checked = Check(child);
  if (FAILED(checked)) return checked;
  const bool moves = (how & (SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)) != 0;
  if (!moves || IsItself(child)) return E_INVALIDARG;
  const auto [row, col] = CellOf(child);
  if (view_->Cells().IsFixed(row, col)) return E_INVALIDARG;
  return Guarded([&] {
    view_->GoTo(row, col);
    return S_OK;
  });
}

HRESULT GridAccessible::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) {
  if (left == nullptr || top == nullptr || width == nullptr || height == nullptr) return E_POINTER;
  const HRESULT checked = Check(child);
  if (FAILED(checked)) return checked;
  RECT place;
  GetClientRect(view_->Outer(), &place);
  if (!IsItself(child)) {
    const auto [row, col] = CellOf(child);
    place = view_->CellRect(row, col);
  }
  MapWindowPoints(view_->Outer(), nullptr, reinterpret_cast<POINT*>(&place), 2);
  *left = place.left;
  *top = place.top;
  *width = WidthOf(place);
  *height = HeightOf(place);
  return S_OK;
}

HRESULT GridAccessible::accNavigate(LONG way, VARIANT start, VARIANT* end) {
  if (end == nullptr) return E_POINTER;
  const HRESULT checked = Check(start);
  if (FAILED(checked)) return checked;
  const Grid& grid = view_->Cells();
  const LONG last = grid.Rows() * grid.Cols();
  if (IsItself(start)) {
    if (way == NAVDIR_FIRSTCHILD) return Give(1, end);
    return way == NAVDIR_LASTCHILD ? Give(last, end) : GiveNothing(end);
  }
  auto [row, col] = CellOf(start);
  switch (way) {
    case NAVDIR_NEXT:
      return start.lVal < last ? Give(start.lVal + 1, end) : GiveNothing(end);
    case NAVDIR_PREVIOUS:
      return start.lVal > 1 ? Give(start.lVal - 1, end) : GiveNothing(end);
    case NAVDIR_UP:
      --row;
      break;
    case NAVDIR_DOWN:
      ++row;
      break;
    case NAVDIR_LEFT:
      --col;
      break;
    case NAVDIR_RIGHT:
      ++col;
      break;
    default:
      return GiveNothing(end);
  }
  const bool there = row >= 0 && row < grid.Rows() && col >= 0 && col < grid.Cols();
  return there ? Give(NumberOf(row, col), end) : GiveNothing(end);
}

HRESULT GridAccessible::accHitTest(LONG left, LONG top, VARIANT* child) {
  if (child == nullptr) return E_POINTER;
  if (view_ == nullptr) return CO_E_OBJNOTCONNECTED;
  POINT point = {left, top};
  ScreenToClient(view_->Outer(), &point);
  RECT area;
  GetClientRect(view_->Outer(), &area);
  if (PtInRect(&area, point) == FALSE) return GiveNothing(child);
  const GridView::Spot spot = view_->SpotAt(point);
  return Give(spot.OnCell() ? NumberOf(spot.row, spot.col) : CHILDID_SELF, child);
}

HRESULT GridAccessible::accDoDefaultAction(VARIANT child) {
  const HRESULT checked = Check(child);
  if (FAILED(checked)) return checked;
  if (IsItself(child)) return DISP_E_MEMBERNOTFOUND;
  return Guarded([&] {
    const auto [row, col] = CellOf(child);
    view_->DoubleClick(row, col);
    return S_OK;
  });
}

}  // namespace plexel

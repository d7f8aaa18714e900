#include "forms/hand.h"

#include <algorithm>

#include "forms/acting.h"

namespace plexel {

namespace {

bool TakesFocusFromAnyButton(ControlKind kind) { return kind == ControlKind::Grid || kind == ControlKind::TextBox; }

}  // namespace

/// The focus of a click. What the focus events do to the control is not looked at again: the button is down already.
void Hand::TakeFocus(Control& control, std::int16_t button) {
  if (!control.CanTakeFocus()) return;
  if (button == LeftButton || TakesFocusFromAnyButton(control.Kind())) form_.Focus(&control);
}

/// What a click does beyond the focus.
void Hand::Press(Control& control) {
  switch (control.Kind()) {
    case ControlKind::OptionButton:
      return static_cast<OptionButton&>(control).Value(true);
    case ControlKind::ComboBox:
      return;
    default:
      return Raise(control.OnClick);
  }
}

void Hand::Click(Control& control) {
  if (control.Kind() == ControlKind::Menu) return Menu(static_cast<MenuItem&>(control));
  CheckUsable(control);
  DismissMenu();
  const OpenForm open(form_);
  TakeFocus(control, LeftButton);
  if (open) Press(control);
}

void Hand::Click(Grid& grid, int row, int col) {
  CheckUsable(grid);
  grid.CellAt(row, col);
  DismissMenu();
  const OpenForm open(form_);
  TakeFocus(grid, LeftButton);
  if (open && !grid.IsFixed(row, col)) grid.Current(row, col);
  if (open) Press(grid);
}

void Hand::DblClick(Control& control) {
  const OpenForm open(form_);
  Click(control);
  if (open && control.Usable()) Raise(control.OnDblClick);
}

void Hand::DblClick(Grid& grid, int row, int col) {
  const OpenForm open(form_);
  Click(grid, row, col);
  if (open && grid.Usable()) Raise(grid.OnDblClick);
}

void Hand::MouseDown(Control& control, std::int16_t button, std::int16_t shift, float x, float y) {
  CheckUsable(control);
  DismissMenu();
  const OpenForm open(form_);
  TakeFocus(control, button);
  if (open) Raise(control.OnMouseDown, button, shift, x, y);
}

void Hand::Focus(Control& control) {
  CheckUsable(control);
  DismissMenu();
  form_.Focus(&control);
}

void Hand::Select(ComboBox& box, int index) {
  CheckUsable(box);
  box.List(index);
  DismissMenu();
  const OpenForm open(form_);
  TakeFocus(box, LeftButton);
  if (open) box.ListIndex(index);
}

void Hand::Edit(TextBox& box, const std::string& text, int selStart) {
  CheckUsable(box);
  if (box.Locked() && text != box.Text()) throw Failure(FailureKind::InvalidCall, box.FullName() + " is locked");
  DismissMenu();
  const OpenForm open(form_);
  TakeFocus(box, LeftButton);
  if (open) box.Edit(text, selStart);
}

void Hand::Cell(Grid& grid, int row, int col) {
  CheckUsable(grid);
  grid.CellAt(row, col);
  if (grid.IsFixed(row, col)) throw Failure(FailureKind::Index, grid.FullName() + " has a fixed cell there");
  DismissMenu();
  const OpenForm open(form_);
  TakeFocus(grid, LeftButton);
  if (open) MoveTo(grid, row, col);
}

void Hand::ResizeColumn(Grid& grid, int col, int width) {
  CheckUsable(grid);
  if (!grid.UserResizing()) throw Failure(FailureKind::InvalidCall, grid.FullName() + " has columns of fixed width");
  DismissMenu();
  grid.ColWidth(col, width);
}

void Hand::Scroll(Grid& grid, int topRow, int leftCol) {
  CheckUsable(grid);
  DismissMenu();
  grid.ScrollTo(topRow, leftCol);
}

void Hand::Tab(TabStrip& strip, int page) {
  CheckUsable(strip);
  if (!strip.TabEnabled(page)) {
    throw Failure(FailureKind::InvalidCall, strip.FullName() + " has page " + std::to_string(page) + " off");
  }
  DismissMenu();
  const OpenForm open(form_);
  TakeFocus(strip, LeftButton);
  if (!open) return;
  strip.Tab(page);
  Raise(strip.OnClick);
}

void Hand::DblClickTab(TabStrip& strip, int page) {
  const OpenForm open(form_);
  Tab(strip, page);
  if (open && strip.Usable()) Raise(strip.OnDblClick);
}

void Hand::Menu(MenuItem& entry) {
  const MenuItem* const menu = form_.OpenPopup();
  if (menu == nullptr) throw Failure(FailureKind::InvalidCall, "no popup menu is open");
  const std::vector<MenuItem*>& entries = menu->Entries();
  if (std::find(entries.begin(), entries.end(), &entry) == entries.end()) {
    throw Failure(FailureKind::InvalidCall, entry.FullName() + " is no entry of " + menu->FullName());
  }
  CheckUsable(entry);
  if (entry.Separator()) throw Failure(FailureKind::InvalidCall, entry.FullName() + " is a separator");
  DismissMenu();
  Raise(entry.OnClick);
}

bool Hand::DismissMenu() {
  const bool wasOpen = form_.OpenPopup() != nullptr;
  form_.OpenPopup(nullptr);
  return wasOpen;
}

void Hand::Move(float left, float top) {
  DismissMenu();
  form_.Left(left);
  form_.Top(top);
}

void Hand::Close() {
  DismissMenu();
  form_.Unload(UnloadMode::CloseBox);
}

}  // namespace plexel

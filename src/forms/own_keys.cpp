#include "forms/own_keys.h"

#include <algorithm>
#include <array>
#include <optional>

#include "forms/acting.h"
#include "forms/text_editing.h"

namespace plexel {

namespace {

/// Entries of a list, and of an open list, that PageUp and PageDown pass over.
constexpr int ListPage = 8;

void ActOnButton(Control& control, std::int16_t keyCode) {
  if (keyCode == key::Space) return control.Owner().Armed(&control);
  const bool back = keyCode == key::Left || keyCode == key::Up;
  if (!back && keyCode != key::Right && keyCode != key::Down) return;
  if (static_cast<CommandButton&>(control).ParksFocus() || !control.HasFocus()) return;
  Control* const next = control.Owner().TabNeighbour(!back);
  // Where arrows have a meaning of their own, the next one would change what the control holds.
  if (next == nullptr) return;
  if (next->Kind() == ControlKind::CommandButton || next->Kind() == ControlKind::OptionButton) next->SetFocus();
}

void ActOnOption(Control& control, std::int16_t keyCode) {
  if (keyCode == key::Space) return static_cast<OptionButton&>(control).Value(true);
  const bool back = keyCode == key::Left || keyCode == key::Up;
  if (!back && keyCode != key::Right && keyCode != key::Down) return;
  std::vector<OptionButton*> group = static_cast<OptionButton&>(control).Group();
  if (back) std::reverse(group.begin(), group.end());
  std::rotate(group.begin(), std::find(group.begin(), group.end(), &control) + 1, group.end());
  const auto next =
      std::find_if(group.begin(), group.end(), [](const OptionButton* option) { return option->CanTakeFocus(); });
  if (next == group.end() || *next == &control) return;
  const OpenForm open(control.Owner());
  (*next)->SetFocus();
  if (open) (*next)->Value(true);
}

std::optional<int> EntryAfter(const ComboBox& box, std::int16_t keyCode) {
  const int last = box.ListCount() - 1, here = box.ListIndex();
  const bool none = here < 0;
  switch (keyCode) {
    case key::Home:
      return 0;
    case key::End:
      return last;
    case key::Down:
      return here + 1;
    case key::PageDown:
      return none ? 0 : std::min(here + ListPage, last);
    case key::Up:
      return here - 1;
    case key::PageUp:
      return none ? here : std::max(here - ListPage, 0);
    default:
      return std::nullopt;
  }
}

void ActOnCombo(Control& control, std::int16_t keyCode) {
  auto& box = static_cast<ComboBox&>(control);
  const std::optional<int> entry = EntryAfter(box, keyCode);
  if (!entry || *entry < 0 || *entry >= box.ListCount() || *entry == box.ListIndex()) return;
  box.ListIndex(*entry);
}

void ActOnGrid(Control& control, std::int16_t keyCode) {
  auto& grid = static_cast<Grid&>(control);
  int row = grid.Row(), col = grid.Col();
  switch (keyCode) {
    case key::Left:
      --col;
      break;
    case key::Right:
      ++col;
      break;
    case key::Up:
      --row;
      break;
    case key::Down:
      ++row;
      break;
    case key::PageUp:
      row -= grid.RowsInView();
      break;
    case key::PageDown:
      row += grid.RowsInView();
      break;
    case key::Home:
      col = grid.FixedCols();
      break;
    case key::End:
      col = grid.Cols() - 1;
      break;
    default:
      return;
  }
  MoveTo(grid, std::clamp(row, grid.FixedRows(), grid.Rows() - 1), std::clamp(col, grid.FixedCols(), grid.Cols() - 1));
}

void ActOnStrip(Control& control, std::int16_t keyCode) {
  auto& strip = static_cast<TabStrip&>(control);
  if (keyCode != key::Left && keyCode != key::Right) return;
  const int step = keyCode == key::Left ? -1 : 1;
  int page = strip.Tab() + step;
  while (page >= 0 && page < strip.Pages() && !strip.TabEnabled(page)) page += step;
  if (page < 0 || page >= strip.Pages()) return;
  strip.Tab(page);
  Raise(strip.OnClick);
}

struct OwnKeys {
  ControlKind kind;
  void (*act)(Control& control, std::int16_t keyCode);
};

constexpr auto OwnKeysOfKinds = std::to_array<OwnKeys>({
    {ControlKind::CommandButton, ActOnButton},
    {ControlKind::OptionButton, ActOnOption},
    {ControlKind::ComboBox, ActOnCombo},
    {ControlKind::TextBox, EditByKey},
    {ControlKind::TabStrip, ActOnStrip},
    {ControlKind::Grid, ActOnGrid},
});

}  // namespace

void ActOnKey(Control& control, std::int16_t keyCode, std::int16_t shift) {
  if ((shift & (key::ControlBit | key::AltBit)) != 0) return;
  for (const OwnKeys& keys : OwnKeysOfKinds) {
    if (keys.kind == control.Kind()) keys.act(control, keyCode);
  }
}

}  // namespace plexel

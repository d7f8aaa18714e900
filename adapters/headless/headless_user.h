#pragma once

#include <initializer_list>
#include <string_view>

#include "platform/keyboard.h"

namespace plexel {

class Control;
class Form;
class Grid;
class HeadlessPlatform;

/// The person in front of a headless platform: acts on the topmost dialog, whose controls go by their full names
/// ("cmdOK", "optCodeType(2)"), and presses keys. Its place is HeadlessModalLoop::onRun. The acts are those of Hand,
/// with their failures. std::logic_error, which no dialog passes over, when no dialog is open, and for a name that no
/// control of the wanted kind has.
class HeadlessUser {
 public:
  /// The platform outlives the user.
  explicit HeadlessUser(HeadlessPlatform& platform) : platform_(platform) {}

  /// Clicks on a control, or on a cell of a grid; rows and columns count from 0, titles included.
  void Click(std::string_view control);
  void Click(std::string_view grid, int row, int col);
  /// Clicks twice on a control, or on a cell of a grid.
  void DblClick(std::string_view control);
  void DblClick(std::string_view grid, int row, int col);
  /// Picks a list entry of a combo box by its place.
  void Select(std::string_view box, int index);
  /// Types into a text box.
  void Type(std::string_view box, std::string_view text);
  /// Presses keys together: down in this order, up in the reverse order; `down` of the events is not looked at.
  void Press(std::initializer_list<KeyEvent> keys);

 private:
  Form& Dialog() const;
  template <typename Kind = Control>
  Kind& Named(std::string_view control) const;

  HeadlessPlatform& platform_;
};

}  // namespace plexel

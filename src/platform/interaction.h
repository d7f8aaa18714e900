#pragma once

#include <cstdint>
#include <string_view>

#include "platform/window.h"

namespace plexel {

class Form;
class MenuItem;

/// Shows forms and runs the events of one until it has closed.
class ModalLoop {
 public:
  virtual ~ModalLoop() = default;
  /// Called before a form loads; throws Failure when forms cannot be shown.
  virtual void Prepare(Form& form) = 0;
  /// Shows a loaded form over its owner (null for none) and returns when `form.IsShown()` has become false.
  virtual void Run(Form& form, Window* owner) = 0;
  /// Tells that a form has closed.
  virtual void Closed(Form& form) = 0;
  /// Opens a popup menu of the form: at the mouse, or at (x, y) in twips of the form's client area when `placed`.
  virtual void Popup(Form& form, MenuItem& menu, bool placed, float x, float y) = 0;
};

/// Answers of a message box.
enum class MessageAnswer : std::int32_t { None = 0, OK = 1, Cancel = 2, Yes = 6, No = 7 };

/// Shows message boxes.
class MessageBoxes {
 public:
  /// The styles: the buttons, and the sign of danger, which is added to them.
  static constexpr std::int32_t StyleOkOnly = 0;
  static constexpr std::int32_t StyleYesNoCancel = 3;
  static constexpr std::int32_t StyleCritical = 16;
  virtual ~MessageBoxes() = default;
  /// Shows a modal message box and returns the button pressed.
  virtual MessageAnswer Show(std::string_view prompt, std::int32_t style, std::string_view title) = 0;
};

/// Lets the program take its events during a long procedure.
class EventPump {
 public:
  virtual ~EventPump() = default;
  /// Handles the events that are waiting, once.
  virtual void DoEvents() = 0;
};

}  // namespace plexel

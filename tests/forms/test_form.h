#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "forms/form.h"
#include "headless/headless_platform.h"
#include "platform/failure.h"
#include "platform/platform_in_force.h"

namespace plexel {

/// A form that keeps what happens to it in order.
class TestForm : public Form {
 public:
  TestForm() : Form("frmTest") {}

  /// Notes the events of a control from now on.
  void Watch(Control& control) {
    const std::string name = control.FullName();
    const auto note = [this, name](const char* event) { return [this, name, event] { Note(name + ' ' + event); }; };
    control.OnClick = note("Click");
    control.OnDblClick = note("DblClick");
    control.OnGotFocus = note("GotFocus");
    control.OnLostFocus = note("LostFocus");
    control.OnKeyDown = [this, name](std::int16_t& keyCode, std::int16_t shift) {
      Note(name + " KeyDown " + std::to_string(keyCode) + ' ' + std::to_string(shift));
    };
    control.OnKeyPress = [this, name](std::int16_t& keyAscii) { Note(name + " KeyPress " + std::to_string(keyAscii)); };
    control.OnMouseDown = [this, name](std::int16_t button, std::int16_t, float, float) {
      Note(name + " MouseDown " + std::to_string(button));
    };
  }
  void Note(std::string entry) { log.push_back(std::move(entry)); }
  /// What was noted since the last time.
  std::vector<std::string> Taken() { return std::exchange(log, {}); }

  void OnLoad() override {
    Note("Load");
    if (onLoad) onLoad();
  }
  void OnQueryUnload(UnloadMode mode) override {
    Note("QueryUnload " + std::to_string(static_cast<int>(mode)));
    if (onQueryUnload) onQueryUnload();
  }
  void OnUnload() override {
    Note("Unload");
    if (onUnload) onUnload();
  }
  void OnAbandoned() override { Note("Abandoned"); }
  void OnKeyDown(std::int16_t& keyCode, std::int16_t shift) override {
    Note("Form KeyDown " + std::to_string(keyCode) + ' ' + std::to_string(shift));
    if (onKeyDown) onKeyDown(keyCode);
  }
  void OnKeyPress(std::int16_t& keyAscii) override {
    Note("Form KeyPress " + std::to_string(keyAscii));
    if (onKeyPress) onKeyPress(keyAscii);
  }

  std::vector<std::string> log;
  std::function<void()> onLoad, onQueryUnload, onUnload;
  std::function<void(std::int16_t&)> onKeyDown, onKeyPress;
};

/// Shows a form, lets `acts` act on it once, and closes it unless it has closed.
inline void WhileShown(Form& form, const std::function<void()>& acts) {
  HeadlessPlatform platform;
  const PlatformInForce use(platform);
  int runs = 0;
  platform.Modal().onRun = [&](Form& shown) {
    ++runs;
    acts();
    shown.Unload();
  };
  form.ShowModal(nullptr);
  EXPECT_EQ(runs, 1);
}

/// The kind and the message of the failure of an act; "" when it succeeds.
inline std::string FailureOf(FailureKind kind, const std::function<void()>& act) {
  try {
    act();
  } catch (const Failure& failure) {
    return failure.Kind() == kind ? failure.what() : "a failure of another kind: " + std::string(failure.what());
  }
  return "";
}

/// The value of a property in a description; a test failure when it is absent or of another type.
template <typename Value>
Value PropertyOf(const Description& description, std::string_view name) {
  for (const auto& [property, value] : description) {
    if (property != name) continue;
    if (const Value* found = std::get_if<Value>(&value)) return *found;
    ADD_FAILURE() << name << " is of another type";
    return {};
  }
  ADD_FAILURE() << name << " is absent";
  return {};
}

inline std::vector<std::string> NamesIn(const Description& description) {
  std::vector<std::string> names;
  for (const auto& [name, value] : description) names.push_back(name);
  return names;
}

inline std::vector<std::string> FullNamesOf(const std::vector<Control*>& controls) {
  std::vector<std::string> names;
  for (const Control* control : controls) names.push_back(control->FullName());
  return names;
}

using Strings = std::vector<std::string>;

}  // namespace plexel

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>

#include "services/value_rows.h"

namespace plexel {

/// The things of the headless platform, its surroundings and its host that can be made to fail.
enum class Fault : std::uint8_t {
  KeyboardHook,  ///< installing the keyboard hook yields 0
  LowLevelHook,  ///< installing the low-level hook yields 0
  Unhook,        ///< removing a hook yields 0, and the hook stays
  Registry,      ///< opening a key and setting a value yield an error code, and nothing is stored
  Language,
  Settings,
  Capability,
  Layout,
  Show,  ///< a form cannot be shown
  HandlerDirectInputStatusChanged,
  HandlerSendKeyDefinition,
  HandlerMouseClicked,
  HandlerMouseDblClicked,
  HandlerProjectModified,
  Keys,
  Screen,
  Version,
  Help,
  Messages,
  Popup,
  Events,
  ParameterFiles,
  Container
};

/// A fault and its name.
struct FaultRow {
  /// The fault.
  Fault fault;
  /// Its name in scripts.
  std::string_view name;
};

/// In the order of the faults.
inline constexpr auto FaultTable = std::to_array<FaultRow>({
    {Fault::KeyboardHook, "keyboard-hook"},
    {Fault::LowLevelHook, "lowlevel-hook"},
    {Fault::Unhook, "unhook"},
    {Fault::Registry, "registry"},
    {Fault::Language, "language"},
    {Fault::Settings, "settings"},
    {Fault::Capability, "capability"},
    {Fault::Layout, "layout"},
    {Fault::Show, "show"},
    {Fault::HandlerDirectInputStatusChanged, "handler:DirectInputStatusChanged"},
    {Fault::HandlerSendKeyDefinition, "handler:SendKeyDefinition"},
    {Fault::HandlerMouseClicked, "handler:MouseClicked"},
    {Fault::HandlerMouseDblClicked, "handler:MouseDblClicked"},
    {Fault::HandlerProjectModified, "handler:ProjectModified"},
    {Fault::Keys, "keys"},
    {Fault::Screen, "screen"},
    {Fault::Version, "version"},
    {Fault::Help, "help"},
    {Fault::Messages, "messages"},
    {Fault::Popup, "popup"},
    {Fault::Events, "events"},
    {Fault::ParameterFiles, "parameter-files"},
    {Fault::Container, "container"},
});
static_assert(InOrderOfValues(FaultTable, &FaultRow::fault));

/// Which of them fail: all the time while turned on, or once on their n-th call. Names are those of the table.
class Faults {
 public:
  /// The fault of a name, nothing for an unknown one.
  static std::optional<Fault> Named(std::string_view name);

  /// Makes a thing fail all the time, or no more.
  void Turn(Fault fault, bool on) { At(fault).on = on; }
  /// Fails on the n-th call from now (1 is the next one), once; 0 disarms.
  void Arm(Fault fault, std::int64_t call);
  /// std::invalid_argument for an unknown name.
  void Turn(std::string_view name, bool on);
  /// std::invalid_argument for an unknown name.
  void Arm(std::string_view name, std::int64_t call);

  /// What a call that is to fail throws in place of its own way to fail; an empty function gives that back.
  void Thrown(std::function<void()> thrower) { thrower_ = std::move(thrower); }

  /// Counts a call and tells whether it is to fail.
  bool Trips(Fault fault);
  /// The same; a call that is to fail throws Failure (Platform).
  void Check(Fault fault);
  /// Calls counted so far.
  std::int64_t Calls(Fault fault) const { return states_[static_cast<std::size_t>(fault)].calls; }
  /// Nothing fails any more; the counts start anew.
  void Reset() {
    states_ = {};
    thrower_ = nullptr;
  }

 private:
  struct State {
    bool on = false;
    std::int64_t calls = 0;
    std::int64_t failingCall = 0;
  };
  State& At(Fault fault) { return states_[static_cast<std::size_t>(fault)]; }
  std::array<State, FaultTable.size()> states_{};
  std::function<void()> thrower_;
};

}  // namespace plexel

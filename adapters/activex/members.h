#pragma once

#include <ole2.h>
#include <windows.h>

#include <cstddef>
#include <span>
#include <string_view>

namespace plexel::activex {

/// The members of the control's interface and their numbers: properties from 1 in the order of the element's property
/// table, then the methods.

/// One method.
struct Method {
  std::string_view name;
  /// The names of its arguments.
  std::span<const std::string_view> arguments;
};

/// In the order of the interface.
std::span<const Method> Methods();
/// Those whose calls differ.
enum class MethodNumber : std::size_t {
  OpenPropertiesDialog,
  OpenConfigurationDialog,
  UpdateFocus,
  Refresh,
  ShowDefinedObject,
  SetTactisBaseElementDefinition,
  CheckIfLedIsAlreadyDefined
};

/// The number of a property, whose name is compared exactly; DISPID_UNKNOWN for any other text.
DISPID PropertyNumber(std::string_view name);
/// The number of a member, the case of whose name does not matter; DISPID_UNKNOWN for none.
DISPID MemberNumber(const wchar_t* name);

/// Whether two names of Latin letters and digits are the same but for case.
bool SameName(std::string_view name, const wchar_t* asked);

}  // namespace plexel::activex

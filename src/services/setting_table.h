#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace plexel {

/// The switches of the editor, as GetOption numbers them.
enum OptionNumber : std::int32_t {
  OptionShowCodeBalance = 1,
  OptionUseWizard = 2,
  OptionShowX = 3,
  OptionShowXPermanent = 4,
  OptionShowDefined = 5,
  OptionLockTaskKeys = 9
};

/// The numbers, as GetParameter numbers them.
enum ParameterNumber : std::int32_t {
  ParameterXSize = 0,
  ParameterFocusWidth = 1,
  ParameterFocusColor = 2,
  ParameterCaptureColor = 3,
  ParameterDefinedColor = 5
};

/// One setting that the user can change: a switch (an option of the service) or a number (a parameter in decimal text).
struct SettingRow {
  std::string_view name;            ///< in the file of settings
  bool isSwitch;                    ///< of GetOption, else of GetParameter
  std::int32_t number;              ///< of GetOption or GetParameter
  std::int32_t initial, low, high;  ///< the default, and the bounds
};

/// Every setting, one row each; the language stands beside them.
inline constexpr auto SettingTable = std::to_array<SettingRow>({
    {"ShowCodeBalance", true, OptionShowCodeBalance, 1, 0, 1},
    {"UseWizard", true, OptionUseWizard, 0, 0, 1},
    {"ShowX", true, OptionShowX, 0, 0, 1},
    {"ShowXPermanent", true, OptionShowXPermanent, 0, 0, 1},
    {"ShowDefined", true, OptionShowDefined, 1, 0, 1},
    {"LockTaskKeys", true, OptionLockTaskKeys, 1, 0, 1},
    {"XSize", false, ParameterXSize, 1, 0, 2},
    {"FocusWidth", false, ParameterFocusWidth, 1, 0, 255},
    {"FocusColor", false, ParameterFocusColor, 255, 0, 0xFFFFFF},
    {"CaptureColor", false, ParameterCaptureColor, 65535, 0, 0xFFFFFF},
    {"DefinedColor", false, ParameterDefinedColor, 32768, 0, 0xFFFFFF},
});

/// The row of a switch or of a number; null for a number of the service that no setting has.
constexpr const SettingRow* FindSetting(bool isSwitch, std::int32_t number) {
  const auto* const row = std::find_if(SettingTable.begin(), SettingTable.end(), [=](const SettingRow& candidate) {
    return candidate.isSwitch == isSwitch && candidate.number == number;
  });
  return row == SettingTable.end() ? nullptr : row;
}
/// The row of a switch, or of a number.
constexpr const SettingRow& SettingOf(OptionNumber number) { return *FindSetting(true, number); }
constexpr const SettingRow& SettingOf(ParameterNumber number) { return *FindSetting(false, number); }

}  // namespace plexel

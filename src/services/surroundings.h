#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "services/boolean.h"
#include "services/value_rows.h"

namespace plexel {

/// Texts in the user's language, by number.
class LanguageService {
 public:
  virtual ~LanguageService() = default;
  /// The text of a number, empty when the language has none.
  virtual void GetText(std::int32_t number, std::string& text) = 0;
};

/// The user's settings, kept by the host.
class SettingsService {
 public:
  virtual ~SettingsService() = default;
  /// The directory of the installation, without a trailing separator.
  virtual void GetBasePath(std::string& text) = 0;
  /// The name of the current language in English.
  virtual void GetLanguageName(std::string& text) = 0;
  /// A switch by its number; false for an unknown one.
  virtual void GetOption(std::int32_t number, Boolean& value) = 0;
  /// A number by its number, in decimal text; empty for an unknown one.
  virtual void GetParameter(std::int32_t number, std::string& text) = 0;
  /// A saved position or column width, twips in decimal text.
  virtual void GetWindowPosition(std::int32_t number, std::string& text) = 0;
};

/// What a target system can do. The queries stand in the order of the service's interface.
enum class Capability : std::int32_t {
  HasBackgroundLightDarker,
  HasBackgroundLightLighter,
  HasContrastLower,
  HasContrastHigher,
  HasLayer4Key,
  HasLayer3Key,
  HasLayer2Key,
  HasWarmStart,
  HasSystemReset,
  HasAlarmLed,
  HasScrollLockLed,
  HasPanelLockedLed,
  HasLayer4Led,
  HasLayer3Led,
  HasLayer2Led,
  HasLayer1Led,
  HasRunLed,
  HasNumLockLed,
  HasCapsLockLed,
  HasPowerLed,
  HasTemperatureLed,
  HasHarddiskLed,
  HasUserLed
};

/// A query and its name.
struct CapabilityRow {
  /// The query.
  Capability query;
  /// Its name, as in a capability table.
  std::string_view name;
};

/// In the order of the queries.
inline constexpr auto CapabilityTable = std::to_array<CapabilityRow>({
    {Capability::HasBackgroundLightDarker, "HasBackgroundLightDarker"},
    {Capability::HasBackgroundLightLighter, "HasBackgroundLightLighter"},
    {Capability::HasContrastLower, "HasContrastLower"},
    {Capability::HasContrastHigher, "HasContrastHigher"},
    {Capability::HasLayer4Key, "HasLayer4Key"},
    {Capability::HasLayer3Key, "HasLayer3Key"},
    {Capability::HasLayer2Key, "HasLayer2Key"},
    {Capability::HasWarmStart, "HasWarmStart"},
    {Capability::HasSystemReset, "HasSystemReset"},
    {Capability::HasAlarmLed, "HasAlarmLed"},
    {Capability::HasScrollLockLed, "HasScrollLockLed"},
    {Capability::HasPanelLockedLed, "HasPanelLockedLed"},
    {Capability::HasLayer4Led, "HasLayer4Led"},
    {Capability::HasLayer3Led, "HasLayer3Led"},
    {Capability::HasLayer2Led, "HasLayer2Led"},
    {Capability::HasLayer1Led, "HasLayer1Led"},
    {Capability::HasRunLed, "HasRunLed"},
    {Capability::HasNumLockLed, "HasNumLockLed"},
    {Capability::HasCapsLockLed, "HasCapsLockLed"},
    {Capability::HasPowerLed, "HasPowerLed"},
    {Capability::HasTemperatureLed, "HasTemperatureLed"},
    {Capability::HasHarddiskLed, "HasHarddiskLed"},
    {Capability::HasUserLed, "HasUserLed"},
});
static_assert(InOrderOfValues(CapabilityTable, &CapabilityRow::query));
/// How many queries there are.
inline constexpr int CapabilityCount = static_cast<int>(CapabilityTable.size());

/// The name of a query.
constexpr std::string_view CapabilityName(Capability query) {
  return CapabilityTable.at(static_cast<std::size_t>(query)).name;
}
/// The query of a name, which is compared exactly.
std::optional<Capability> CapabilityNamed(std::string_view name);

/// Tells what target systems can do.
class CapabilityService {
 public:
  virtual ~CapabilityService() = default;
  /// 1 when the target system has the thing; any other value counts as no.
  virtual std::int32_t Ask(Capability query, std::string_view targetSystem) = 0;
};

/// Reads values of sections and keys out of a parameter file; a value is a row of items between delimiters.
class ParameterFileReader {
 public:
  virtual ~ParameterFileReader() = default;
  /// What stands between the items of values that are read from now on.
  virtual void SetDelimiter(std::string_view delimiter) = 0;
  /// Fetches the value of a key, and writes the status in any case: 0 when it was found.
  virtual void ReadEntry(std::string_view file, std::string_view section, std::string_view name, std::string& value,
                         std::int32_t reserved, std::int32_t& status) = 0;
  /// The item of a 1-based number, the empty string when there is none.
  virtual void GetItem(std::int32_t index, const std::string& value, std::string& text) = 0;
};

/// What the host supplies. Services are asked anew at each use, and every one of them may throw Failure.
class Surroundings {
 public:
  virtual ~Surroundings() = default;
  /// The texts.
  virtual LanguageService& Language() = 0;
  /// The user's settings.
  virtual SettingsService& Settings() = 0;
  /// What target systems can do.
  virtual CapabilityService& Capabilities() = 0;
  /// Files of named code sequences.
  virtual ParameterFileReader& ParameterFiles() = 0;

  /// The surroundings in force; Failure (ObjectNotSet) when there are none.
  static Surroundings& Current();

 private:
  friend class SurroundingsInForce;
  static Surroundings* current_;
};

}  // namespace plexel

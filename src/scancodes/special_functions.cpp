#include "scancodes/special_functions.h"

#include <algorithm>
#include <array>

#include "scancodes/key_translation.h"
#include "services/shared_services.h"
#include "services/value_rows.h"

namespace plexel {

namespace {

constexpr std::int32_t deviceTypeWithoutLight = 2;

constexpr std::array<SpecialFunction, NoSpecialFunction> functions = {{
    {SystemReset, 2608, Capability::HasSystemReset, 0xFE, false},
    {BackgroundLightLigther, 2601, Capability::HasBackgroundLightLighter, 0xF9, true},
    {BackgroundLightDarker, 2602, Capability::HasBackgroundLightDarker, 0xFB, true},
    {ContrastHigher, 2603, Capability::HasContrastHigher, 0xF4, false},
    {ContrastLower, 2604, Capability::HasContrastLower, 0xF6, false},
    {Layer2, 2605, Capability::HasLayer2Key, 0xF1, false},
    {Layer3, 2606, Capability::HasLayer3Key, 0xF2, false},
    {Layer4, 2607, Capability::HasLayer4Key, 0xF3, false},
    {WarmStart, 2600, Capability::HasWarmStart, 0xF5, false},
}};

static_assert(InOrderOfValues(functions, &SpecialFunction::function));

constexpr std::array<enumSpecialKeyFunctions, NoSpecialFunction> comparingOrder = {BackgroundLightLigther,
                                                                                   BackgroundLightDarker,
                                                                                   ContrastHigher,
                                                                                   ContrastLower,
                                                                                   WarmStart,
                                                                                   Layer2,
                                                                                   Layer3,
                                                                                   Layer4,
                                                                                   SystemReset};

}  // namespace

std::span<const SpecialFunction> SpecialFunctions() { return functions; }

bool IsOffered(const SpecialFunction& function, const ctlPlexelBaseElement& element) {
  if (function.backgroundLight && element.DeviceType() == deviceTypeWithoutLight) return false;
  return TargetHas(function.query, element.TargetSystem());
}

enumSpecialKeyFunctions SpecialFunctionOfText(std::string_view text) {
  for (const enumSpecialKeyFunctions function : comparingOrder) {
    if (GetText(functions[function].textId) == text) return function;
  }
  return NoSpecialFunction;
}

void GetSpecialFunctionCode(KeyCodes& codes, std::int32_t lngIndex) {
  codes.breaking.length = 0;
  if (lngIndex < 0 || static_cast<std::size_t>(lngIndex) >= functions.size()) return;
  codes.make.codes[0] = functions[static_cast<std::size_t>(lngIndex)].code;
  codes.make.length = 1;
}

}  // namespace plexel

#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "element/ctlPlexelBaseElement.h"
#include "scancodes/code_sequence.h"
#include "services/element_types.h"
#include "services/surroundings.h"

namespace plexel {

/// A function of the panel itself that a key can call.
struct SpecialFunction {
  enumSpecialKeyFunctions function;
  std::int32_t textId;  ///< number of the language text that names it in a list
  Capability query;
  std::uint8_t code;  ///< the command byte to the panel
  bool backgroundLight;
};

/// The functions in the order of their enumeration.
std::span<const SpecialFunction> SpecialFunctions();

/// Whether the element's target system has the function; device type 2 has no background light, and is not asked.
bool IsOffered(const SpecialFunction& function, const ctlPlexelBaseElement& element);

/// The function of a list text. Texts are compared in a fixed order, the first equal one wins; NoSpecialFunction for a
/// text that is none.
enumSpecialKeyFunctions SpecialFunctionOfText(std::string_view text);

/// The one code of a panel function; for any other index only the break length is set, to 0 as always.
void GetSpecialFunctionCode(KeyCodes& codes, std::int32_t lngIndex);

}  // namespace plexel

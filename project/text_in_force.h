#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace plexel {

/// The text of a number in the language in force; `other` where that has none or cannot be asked.
std::string TextInForce(std::int32_t number, std::string_view other);

}  // namespace plexel

#pragma once

#include <string>
#include <string_view>

namespace plexel {

/// Sixteen digits that stand for a text: the same in every run.
std::string FingerprintOfText(std::string_view text);

}  // namespace plexel

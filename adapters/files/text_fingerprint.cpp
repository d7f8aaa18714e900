#include "files/text_fingerprint.h"

#include <cstdint>

#include "forms/ascii.h"

namespace plexel {

std::string FingerprintOfText(std::string_view text) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  std::string digits(16, '0');
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, hash >>= 4U)
    *digit = ascii::HexDigits[hash & 0xFU];
  return digits;
}

}  // namespace plexel

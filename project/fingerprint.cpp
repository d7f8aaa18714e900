#include "project/fingerprint.h"

#include <cstdint>
#include <system_error>

#include "files/path_text.h"
#include "forms/ascii.h"

namespace plexel {

std::string FingerprintOf(const std::filesystem::path& file) {
  std::error_code error;
  std::filesystem::path whole = std::filesystem::weakly_canonical(file, error);
  if (error) whole = std::filesystem::absolute(file, error).lexically_normal();
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char c : TextOf(whole)) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  std::string digits(16, '0');
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, hash >>= 4U)
    *digit = ascii::HexDigits[hash & 0xFU];
  return digits;
}

}  // namespace plexel

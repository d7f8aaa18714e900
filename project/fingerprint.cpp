#include "project/fingerprint.h"

#include <system_error>

#include "files/path_text.h"
#include "files/text_fingerprint.h"

namespace plexel {

std::string FingerprintOf(const std::filesystem::path& file) {
  std::error_code error;
  std::filesystem::path whole = std::filesystem::weakly_canonical(file, error);
  if (error) whole = std::filesystem::absolute(file, error).lexically_normal();
  return FingerprintOfText(TextOf(whole));
}

}  // namespace plexel

// Feeds any content to one reader of files, PLEXEL_FUZZ_READER, and checks its properties.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>

#include "files/reader_properties.h"

namespace {

/// A directory of its own, in memory where the system has such a one.
std::filesystem::path WorkingDirectory() {
  const std::filesystem::path memory = "/dev/shm";
  std::string pattern =
      ((std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path()) / "plexel-fuzz-XXXXXX")
          .string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no directory to work in");
  return pattern;
}

const plexel::ReaderCheck& Check() {
  for (const plexel::ReaderCheck& check : plexel::ReaderChecks) {
    if (check.name == PLEXEL_FUZZ_READER) return check;
  }
  throw std::logic_error("there is no reader " PLEXEL_FUZZ_READER);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::filesystem::path directory = WorkingDirectory();
  static const plexel::ReaderCheck& reader = Check();
  reader.check(directory, std::string_view(reinterpret_cast<const char*>(data), size));
  return 0;
}

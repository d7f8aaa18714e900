#include "files/replacing.h"

#include <array>
#include <string>
#include <string_view>

#include "files/file_error.h"
#include "files/system_files.h"

namespace plexel {

namespace {

/// What is lost of each kind, ahead of its name; in the order of FileTrait::Kind.
constexpr auto kinds =
    std::to_array<std::string_view>({"its owner ", "its group ", "its access list", "its attribute "});

std::string WordsOf(const FileTrait& trait) {
  return std::string(kinds.at(static_cast<std::size_t>(trait.kind))) + trait.name;
}

}  // namespace

void TellReplacing(const std::filesystem::path& file, const std::function<void()>& write, std::ostream& lines) {
  for (const FileTrait& trait : LostByWriting(file)) {
    lines << FileError(file, "is replaced without " + WordsOf(trait)).what() << '\n' << std::flush;
  }
  try {
    write();
  } catch (const FileWarning& warning) {
    lines << warning.what() << '\n';
  }
}

}  // namespace plexel

#include "files/replacing.h"

#include <string>

#include "files/file_error.h"
#include "files/system_files.h"

namespace plexel {

namespace {

std::string WordsOf(const FileTrait& trait) {
  switch (trait.kind) {
    case FileTrait::Kind::Owner:
      return "its owner " + trait.name;
    case FileTrait::Kind::Group:
      return "its group " + trait.name;
    case FileTrait::Kind::AccessList:
      return "its access list";
    case FileTrait::Kind::Attribute:
      break;
  }
  return "its attribute " + trait.name;
}

}  // namespace

void TellReplacing(const std::filesystem::path& file, const std::function<void()>& write, std::ostream& lines) {
  for (const FileTrait& trait : LostByWriting(file)) {
    lines << FileError(file, 0, "is replaced without " + WordsOf(trait)).what() << '\n' << std::flush;
  }
  try {
    write();
  } catch (const FileWarning& warning) {
    lines << warning.what() << '\n';
  }
}

}  // namespace plexel

#include "files/beside.h"

#include <algorithm>
#include <exception>
#include <string>
#include <system_error>

#include "files/file_error.h"
#include "files/file_lists.h"
#include "files/path_text.h"
#include "files/process_lock.h"
#include "files/system_operations.h"
#include "files/text_fingerprint.h"

namespace plexel {

namespace {

/// As long as point, process, number and ending may be together.
constexpr std::size_t LongestTail = 24;

/// What the names of all files beside a file begin with.
std::string StartOf(const std::filesystem::path& file) {
  std::string name = TextOf(file.filename());
  const std::size_t limit = LongestName(DirectoryOf(file));
  if (name.size() + LongestTail <= limit) return name + '.';
  const std::string end = '~' + FingerprintOfText(name) + '.';
  std::size_t length = limit - std::min(limit, LongestTail + end.size());
  // A character that is cut through is none.
  while (length > 0 && (static_cast<unsigned char>(name[length]) & 0xC0U) == 0x80U) --length;
  return name.substr(0, length) + end;
}

/// Takes digits off the front; false when there are none.
bool TakeNumber(std::string_view& text) {
  const std::size_t length = std::min(text.find_first_not_of("0123456789"), text.size());
  text.remove_prefix(length);
  return length > 0;
}

bool IsTail(std::string_view text) {
  if (!TakeNumber(text) || !text.starts_with('-')) return false;
  text.remove_prefix(1);
  return TakeNumber(text) && (text == HalfEnding || text == OldEnding);
}

}  // namespace

std::filesystem::path DirectoryOf(const std::filesystem::path& file) {
  return file.has_parent_path() ? file.parent_path() : ".";
}

std::filesystem::path NameBeside(const std::filesystem::path& file, int number, std::string_view ending) {
  const std::string tail = std::to_string(ProcessNumber()) + '-' + std::to_string(number);
  return file.parent_path() / PathOf(StartOf(file) + tail + std::string(ending));
}

std::vector<std::filesystem::path> StandingBeside(const std::filesystem::path& file) {
  const std::string start = StartOf(file);
  std::error_code error;
  std::vector<std::filesystem::path> files = FilesNamed(start, DirectoryOf(file), error);
  std::erase_if(files, [&start](const std::filesystem::path& beside) {
    const std::string name = TextOf(beside.filename());
    return !IsTail(std::string_view(name).substr(start.size()));
  });
  return files;
}

void ClearLeftOver(const std::vector<std::filesystem::path>& files, std::string_view ending) {
  for (const std::filesystem::path& file : files) {
    try {
      if (TextOf(file.extension()) != ending) continue;
      if (std::optional<ProcessLock> left = ProcessLock::Try(file)) left->Remove();
    } catch (const std::exception&) {  // the next saving looks at it again
    }
  }
}

}  // namespace plexel

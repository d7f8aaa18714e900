#include "project/open_file.h"

#include "files/file_error.h"
#include "files/file_lists.h"
#include "files/path_text.h"
#include "files/system_files.h"
#include "project/fingerprint.h"

namespace plexel {

namespace {

constexpr const char* Extension = ".open";

}  // namespace

OpenFile::OpenFile(const std::filesystem::path& directory, const std::filesystem::path& file)
    : directory_(directory), fingerprint_(FingerprintOf(file)) {
  MakeOwnDirectory(directory_);
  for (int number = 1; !lock_; ++number) {
    mark_ =
        directory_ / (fingerprint_ + "-" + std::to_string(ProcessNumber()) + "-" + std::to_string(number) + Extension);
    lock_ = ProcessLock::Try(mark_);
  }
}

OpenFile::~OpenFile() { lock_->Remove(); }

std::size_t OpenFile::Others() const {
  std::size_t others = 0;
  for (const std::filesystem::path& mark : ExistingFilesWith(Extension, directory_)) {
    if (mark == mark_ || !TextOf(mark.filename()).starts_with(fingerprint_ + "-")) continue;
    try {
      // A mark that can be taken is left over from a program that was killed.
      if (std::optional<ProcessLock> left = ProcessLock::Try(mark)) {
        left->Remove();
      } else {
        ++others;
      }
    } catch (const FileError&) {  // it went in the meantime, or is nobody's
    }
  }
  return others;
}

}  // namespace plexel

#include "files/system_files.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "files/file_error.h"
#include "files/path_text.h"
#include "files/process_lock.h"
#include "files/system_operations.h"

namespace plexel {

namespace {

std::string ReasonOf(int error) { return std::generic_category().message(error); }

/// Writes and flushes the content of a new file. The handle is closed in every case.
int Fill(FilePort& port, int handle, std::string_view content) {
  int error = 0;
  while (error == 0 && !content.empty()) {
    std::size_t written = 0;
    error = port.Write(handle, content, written);
    if (error == 0 && written == 0) error = EIO;
    if (error == 0) content.remove_prefix(std::min(written, content.size()));
  }
  if (error == 0) error = port.Flush(handle);
  const int closed = port.Close(handle);
  return error != 0 ? error : closed;
}

/// Where links lead, of which the last one may lead nowhere yet.
std::filesystem::path EndOfLinks(const std::filesystem::path& file) {
  constexpr int most = 40;  // as many as systems follow
  std::filesystem::path target = file;
  try {
    for (int links = 0; std::filesystem::is_symlink(target); ++links) {
      if (links == most) throw FileError(file, 0, "cannot be written: " + ReasonOf(ELOOP));
      target = target.parent_path() / std::filesystem::read_symlink(target);
    }
  } catch (const std::filesystem::filesystem_error& failure) {
    throw FileError(file, 0, "cannot be written: " + failure.code().message());
  }
  return target;
}

constexpr int NameAttempts = 100;

/// Creates a file beside the target under a name that is not taken.
int CreateBeside(FilePort& port, const std::filesystem::path& target, std::filesystem::path& file, int& handle) {
  int error = EEXIST;
  for (int attempt = 0; error == EEXIST && attempt < NameAttempts; ++attempt) {
    file = target;
    file += "." + std::to_string(ProcessNumber()) + "-" + std::to_string(attempt) + ".new";
    error = port.Create(file, target, handle);
  }
  return error;
}

}  // namespace

std::string ReadWholeFile(const std::filesystem::path& file, std::size_t limit) {
  bool complete = false;
  std::string content = ReadUpTo(file, limit, complete);
  if (!complete) throw FileError(file, 0, "cannot be read: it is larger than " + std::to_string(limit) + " bytes");
  return content;
}

std::string ReadFileStart(const std::filesystem::path& file, std::size_t limit) {
  bool complete = false;
  return ReadUpTo(file, limit, complete);
}

void MakeOwnDirectory(const std::filesystem::path& directory) {
  int error = MakeDirectory(directory);
  if (error == ENOENT && directory.has_parent_path() && directory.parent_path() != directory) {
    MakeOwnDirectory(directory.parent_path());
    error = MakeDirectory(directory);
  }
  if (error != 0) throw FileError(directory, 0, "cannot be made: " + ReasonOf(error));
}

void WriteWholeFile(const std::filesystem::path& file, std::string_view content, FilePort& port) {
  const std::filesystem::path target = WritableTarget(EndOfLinks(file));
  std::filesystem::path beside;
  int handle = -1;
  int error = CreateBeside(port, target, beside, handle);
  if (error != 0) throw FileError(file, 0, "cannot be written: " + ReasonOf(error));
  error = Fill(port, handle, content);
  if (error == 0) error = port.Rename(beside, target);
  if (error != 0) {
    std::string reason = "cannot be written: " + ReasonOf(error);
    if (port.Remove(beside) != 0) reason += " (" + TextOf(beside) + " is left over)";
    throw FileError(file, 0, reason);
  }
  // The new file stands complete under its name; a system that cannot flush directories has nothing more to give.
  static_cast<void>(port.FlushDirectory(target.has_parent_path() ? target.parent_path() : "."));
}

}  // namespace plexel

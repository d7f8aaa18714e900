#include "files/system_files.h"

#include <cerrno>
#include <system_error>
#include <vector>

#include "files/beside.h"
#include "files/file_error.h"
#include "files/filling.h"
#include "files/in_place.h"
#include "files/system_operations.h"

namespace plexel {

namespace {

std::string ReasonOf(int error) { return std::generic_category().message(error); }

/// Where links lead, of which the last one may lead nowhere yet.
std::filesystem::path EndOfLinks(const std::filesystem::path& file) {
  constexpr int most = 40;  // as many as systems follow
  std::filesystem::path target = file;
  try {
    for (int links = 0; std::filesystem::is_symlink(target); ++links) {
      if (links == most) throw FileError(file, "cannot be written: " + ReasonOf(ELOOP));
      target = target.parent_path() / std::filesystem::read_symlink(target);
    }
  } catch (const std::filesystem::filesystem_error& failure) {
    throw FileError(file, "cannot be written: " + failure.code().message());
  }
  return target;
}

/// What a file holds; of one that is half written, what it held before.
std::string ReadPart(const std::filesystem::path& file, std::size_t limit, bool& complete) {
  std::string content = ReadUpTo(file, limit, complete);
  if (!MayBeHalfWritten(content)) return content;
  PutOldContentBack(file, SystemFiles());
  // Where that was not possible it is read from the copy, which goes when the file is whole.
  constexpr int attempts = 3;
  for (int attempt = 0; attempt < attempts; ++attempt) {
    content = ReadUpTo(file, limit, complete);
    const auto copy = MayBeHalfWritten(content) ? OldContentOf(file) : std::nullopt;
    if (!copy) break;
    try {
      return ReadUpTo(*copy, limit, complete);
    } catch (const FileError&) {
      if (std::error_code error; std::filesystem::exists(*copy, error)) throw;
    }
  }
  if (MayBeHalfWritten(content) && NamesOf(file) > 1) {
    throw FileError(file, "cannot be read: it is half written; what it held may stand beside another of its names");
  }
  return content;
}

}  // namespace

std::string ReadWholeFile(const std::filesystem::path& file, std::size_t limit) {
  bool complete = false;
  std::string content = ReadPart(file, limit, complete);
  if (!complete) throw FileError(file, "cannot be read: it is larger than " + std::to_string(limit) + " bytes");
  return content;
}

std::string ReadFileStart(const std::filesystem::path& file, std::size_t limit) {
  bool complete = false;
  return ReadPart(file, limit, complete);
}

void MakeOwnDirectory(const std::filesystem::path& directory) {
  int error = MakeDirectory(directory);
  if (error == ENOENT && directory.has_parent_path() && directory.parent_path() != directory) {
    MakeOwnDirectory(directory.parent_path());
    error = MakeDirectory(directory);
  }
  if (error != 0) throw FileError(directory, "cannot be made: " + ReasonOf(error));
}

namespace {

/// Puts a new file in the place of an old one. What is to be told of it all the same, or empty.
std::string WriteBeside(const std::filesystem::path& name, const std::filesystem::path& target,
                        std::string_view content, FilePort& port) {
  const std::filesystem::path directory = DirectoryOf(target);
  std::filesystem::path beside;
  FileTraits lost;
  int handle = -1;
  int error = CreateBeside(port, target, HalfEnding, beside, handle, lost);
  if (error != 0) throw FileError(name, CannotBeWritten(error));
  error = WriteAll(port, handle, 0, content);
  if (error == 0) error = port.Flush(handle);
  if (error == 0) {
    error = port.Replace(handle, beside, target);
  } else {
    static_cast<void>(port.Close(handle));  // the file goes
  }
  if (error != 0) {
    const int left = port.Remove(beside);
    throw FileError(name, CannotBeWritten(error) + LeftOver(beside, left));
  }
  error = port.FlushDirectory(directory);
  return error == 0 ? std::string() : MayNotOutlast(error);
}

}  // namespace

void WriteWholeFile(const std::filesystem::path& file, std::string_view content, FilePort& port) {
  const WritableFile target = WritableTarget(EndOfLinks(file));
  const std::vector<std::filesystem::path> left = StandingBeside(target.file);
  ClearLeftOver(left, HalfEnding);
  const bool inPlace = target.names > 1;
  const std::string told = (inPlace ? WriteInPlace : WriteBeside)(file, target.file, content, port);
  if (!inPlace) ClearLeftOver(left, OldEnding);
  if (!told.empty()) throw FileWarning(file, told);
}

FileTraits LostByWriting(const std::filesystem::path& file, FilePort& port) {
  FileTraits lost;
  const WritableFile target = WritableTarget(EndOfLinks(file));
  if (target.names != 1) return lost;
  std::filesystem::path beside;
  int handle = -1;
  const int error = CreateBeside(port, target.file, HalfEnding, beside, handle, lost);
  if (error != 0) throw FileError(file, CannotBeWritten(error));
  static_cast<void>(port.Close(handle));   // nothing was written to it
  static_cast<void>(port.Remove(beside));  // what stays is cleared by the saving that follows
  return lost;
}

}  // namespace plexel

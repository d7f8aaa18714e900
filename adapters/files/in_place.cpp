#include "files/in_place.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <system_error>
#include <utility>

#include "files/beside.h"
#include "files/file_error.h"
#include "files/filling.h"
#include "files/path_text.h"
#include "files/system_operations.h"

namespace plexel {

namespace {

constexpr std::size_t NoLimit = std::numeric_limits<std::size_t>::max();
constexpr std::string_view Zero("\0", 1);

/// Gives a file another content; its first byte, which comes last, tells that it is whole.
int Overwrite(FilePort& port, int handle, std::string_view content) {
  int error = 0;
  if (!content.empty()) {
    error = WriteAll(port, handle, 0, Zero);
    if (error == 0) error = port.Flush(handle);
    if (error == 0) error = WriteAll(port, handle, 1, content.substr(1));
  }
  if (error == 0) error = port.Resize(handle, content.size());
  if (error == 0) error = port.Flush(handle);
  if (error != 0 || content.empty()) return error;
  error = WriteAll(port, handle, 0, content.substr(0, 1));
  return error != 0 ? error : port.Flush(handle);
}

/// A file that is open for writing in place, and the copy beside it.
class OpenInPlace {
 public:
  OpenInPlace(const std::filesystem::path& name, const std::filesystem::path& file, FilePort& port)
      : name_(name), file_(file), port_(port) {
    Require(port_.Open(file_, handle_));
  }
  ~OpenInPlace() {
    for (const int handle : {copyHandle_, handle_}) {
      if (handle >= 0) static_cast<void>(port_.Close(handle));  // all that counts was flushed
    }
  }
  OpenInPlace(const OpenInPlace&) = delete;
  OpenInPlace& operator=(const OpenInPlace&) = delete;

  int Handle() const { return handle_; }
  const std::filesystem::path& Copy() const { return copy_; }

  void KeepCopy(std::string_view content) {
    FileTraits lost;
    Require(CreateBeside(port_, file_, OldEnding, copy_, copyHandle_, lost));
    int error = WriteAll(port_, copyHandle_, 0, content);
    if (error == 0) error = port_.Flush(copyHandle_);
    if (error != 0) Refuse(error, DropCopy());
  }
  /// 0, or why it is left over.
  int DropCopy() {
    static_cast<void>(port_.Close(std::exchange(copyHandle_, -1)));
    return port_.Remove(copy_);
  }
  /// Tells why the file cannot be written; and of its copy, where that is left over.
  [[noreturn]] void Refuse(int error, int left) const {
    throw FileError(name_, CannotBeWritten(error) + LeftOver(copy_, left));
  }

 private:
  void Require(int error) const {
    if (error != 0) Refuse(error, 0);
  }

  const std::filesystem::path& name_;
  const std::filesystem::path& file_;
  FilePort& port_;
  std::filesystem::path copy_;
  int handle_ = -1, copyHandle_ = -1;
};

/// The file itself, by a name that leads through no links.
std::filesystem::path WithoutLinks(const std::filesystem::path& file) {
  std::error_code error;
  std::filesystem::path target = std::filesystem::canonical(file, error);
  return error ? file : target;
}

}  // namespace

std::string WriteInPlace(const std::filesystem::path& name, const std::filesystem::path& file, std::string_view content,
                         FilePort& port) {
  PutOldContentBack(file, port);
  const std::filesystem::path directory = DirectoryOf(file);
  OpenInPlace open(name, file, port);
  bool complete = false;
  const std::string old = ReadUpTo(file, NoLimit, complete);
  if (const auto copy = MayBeHalfWritten(old) ? OldContentOf(file) : std::nullopt) {
    throw FileError(name, "cannot be written: it is half written; what it held stands in " + TextOf(*copy));
  }
  ClearLeftOver(StandingBeside(file), OldEnding);
  open.KeepCopy(old);
  const int unflushed = port.FlushDirectory(directory);
  if (const int error = Overwrite(port, open.Handle(), content); error != 0) {
    if (Overwrite(port, open.Handle(), old) == 0) open.Refuse(error, open.DropCopy());
    throw FileError(name, CannotBeWritten(error) + " (what it held stands in " + TextOf(open.Copy()) + ")");
  }
  const int left = open.DropCopy();
  if (unflushed == 0 && left == 0) return {};
  return (unflushed == 0 ? "is written" : MayNotOutlast(unflushed)) + LeftOver(open.Copy(), left);
}

std::optional<std::filesystem::path> OldContentOf(const std::filesystem::path& file) {
  std::optional<std::filesystem::path> latest;
  std::filesystem::file_time_type latestTime;
  for (const std::filesystem::path& beside : StandingBeside(WithoutLinks(file))) {
    std::error_code error;
    const auto time = std::filesystem::last_write_time(beside, error);
    if (error || TextOf(beside.extension()) != OldEnding || (latest && time <= latestTime)) continue;
    latest = beside;
    latestTime = time;
  }
  return latest;
}

void PutOldContentBack(const std::filesystem::path& file, FilePort& port) {
  try {
    const OpenInPlace open(file, file, port);
    bool complete = false;
    const auto copy = MayBeHalfWritten(ReadUpTo(file, 1, complete)) ? OldContentOf(file) : std::nullopt;
    if (copy && Overwrite(port, open.Handle(), ReadUpTo(*copy, NoLimit, complete)) == 0) {
      ClearLeftOver({*copy}, OldEnding);
    }
  } catch (const FileError&) {  // the copy stays, and is read in the file's place
  }
}

}  // namespace plexel

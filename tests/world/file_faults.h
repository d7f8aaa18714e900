#pragma once

#include <filesystem>
#include <functional>
#include <initializer_list>
#include <string>
#include <thread>

namespace plexel {

/// Makes operations on files fail. Each call into the system's library is looked at on its way, whoever makes it:
/// the program, the standard library or the toolkit; nothing in shipped code knows of it. One at a time.
class FileFaults {
 public:
  /// Of the operations below a directory, itself among them, the one of this number, from 1, fails with an error number
  /// of the system.
  FileFaults(const std::filesystem::path& directory, int number, int error);
  /// Each operation of this name fails.
  FileFaults(const std::filesystem::path& directory, const char* operation, int error);
  /// The operations of this name fail one after the other with these errors; 0 lets one through, and so are those
  /// behind the last.
  FileFaults(const std::filesystem::path& directory, const char* operation, std::initializer_list<int> errors);
  ~FileFaults();
  FileFaults(const FileFaults&) = delete;
  FileFaults& operator=(const FileFaults&) = delete;

  /// The operation that failed, as the system calls it; empty while none has.
  std::string Failed() const;
};

/// Somebody else acts ahead of each operation of a name on a file, or on what lies below a directory. What he does is
/// not looked at. Neither two of these at a time nor one beside FileFaults.
class Meanwhile {
 public:
  Meanwhile(const std::filesystem::path& place, const char* operation, std::function<void()> act);
  ~Meanwhile();
  Meanwhile(const Meanwhile&) = delete;
  Meanwhile& operator=(const Meanwhile&) = delete;
};

/// A file in a folder that answers late: whoever opens it waits until it is let go. One at a time.
class LateFile {
 public:
  explicit LateFile(const std::filesystem::path& file);
  /// Lets go.
  ~LateFile();
  LateFile(const LateFile&) = delete;
  LateFile& operator=(const LateFile&) = delete;

  void LetGo();
  /// Whether somebody waits now.
  bool IsWaitedFor() const;
  /// Called by whoever made this object each time that he does anything with the file; he does not wait.
  void OnOwn(std::function<void(const char* operation)> told);
};

/// The system watches no files for anybody, as when there are too many watches already or a folder cannot be watched.
class NoFileWatching {
 public:
  NoFileWatching();
  ~NoFileWatching();
  NoFileWatching(const NoFileWatching&) = delete;
  NoFileWatching& operator=(const NoFileWatching&) = delete;
};

/// The system knows no names of users and groups, as when the service that tells them is not reached.
class NoUserNames {
 public:
  NoUserNames();
  ~NoUserNames();
  NoUserNames(const NoUserNames&) = delete;
  NoUserNames& operator=(const NoUserNames&) = delete;
};

/// The system does not tell which file holds a piece of code.
class NoModuleNames {
 public:
  NoModuleNames();
  ~NoModuleNames();
  NoModuleNames(const NoModuleNames&) = delete;
  NoModuleNames& operator=(const NoModuleNames&) = delete;
};

}  // namespace plexel

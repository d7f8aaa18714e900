#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "files/process_lock.h"
#include "project/panel_document.h"
#include "project/recovery_file.h"
#include "project/recovery_writer.h"

namespace plexel {

/// Keeps the unsaved work of one running program in a recovery file, so that it outlives the program.
///
/// The texts of changed elements are made in small portions (Work), and the file is written on a thread of its own, so
/// that the program's window is never held up. While the project is not modified there is no file.
class RecoveryKeeper {
 public:
  /// Seconds since 1970.
  using Clock = std::function<std::int64_t()>;

  /// Makes the directory, and takes a name in it that no other program has. FileError when that fails.
  RecoveryKeeper(const std::filesystem::path& directory, Clock clock);
  /// What was ordered last is still carried out; the recovery file stays when there is one.
  ~RecoveryKeeper();

  /// The project that is kept from now on, null for none; it must outlive the watching. The file of the one before is
  /// removed.
  void Watch(const PanelDocument* document);
  /// Forgets the project, and lets its file stand as it is.
  void Leave();
  /// Elements of the project have changed.
  void Changed(std::span<const std::size_t> places);
  /// The project was saved, or its file has changed.
  void Saved() { due_ = true; }
  /// Whether the recovery file lags behind the project.
  bool IsDue() const { return due_; }
  /// Makes the texts of up to `elements` elements; when all are there, hands them to the writer. True while there is
  /// more to be done.
  bool Work(std::size_t elements);
  /// Brings everything to the disk, and returns when it is there.
  void Flush();
  /// Why the last writing failed; empty when it did not.
  std::string Problem() { return writer_->Problem(); }
  const std::filesystem::path& File() const { return file_; }

 private:
  void HandOver();

  Clock clock_;
  std::optional<ProcessLock> lock_;
  std::filesystem::path file_;
  std::unique_ptr<RecoveryWriter> writer_;
  const PanelDocument* document_ = nullptr;
  RecoveryWriter::Pieces sections_;  ///< the texts of the elements; null for those that are not made
  std::set<std::size_t> stale_;      ///< places whose text is not made anew yet
  bool due_ = false;
};

/// Unsaved work that a program left behind when it was ended.
struct LostWork {
  ProcessLock lock;  ///< so that no other program offers it
  std::filesystem::path source;
  RecoveryFile content;
};

/// What programs that are no longer running have left in a directory, the latest first. Of a damaged file, and of a
/// directory that cannot be read, the reason is added to `damaged`; what lies there stays.
std::vector<LostWork> FindLostWork(const std::filesystem::path& directory, std::vector<std::string>& damaged);

/// Removes lost work that was taken over or is not wanted. FileError when it cannot be removed; it will be found again
/// then.
void Forget(LostWork& work);

}  // namespace plexel

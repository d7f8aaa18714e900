#include "project/recovery.h"

#include <algorithm>
#include <numeric>
#include <system_error>

#include "files/beside.h"
#include "files/file_error.h"
#include "files/file_lists.h"
#include "files/path_text.h"
#include "files/project_writer.h"
#include "files/system_files.h"

namespace plexel {

namespace {

constexpr const char* Extension = ".recovery";
constexpr const char* LockExtension = ".lock";

std::filesystem::path LockOf(std::filesystem::path file) { return file.replace_extension(LockExtension); }

}  // namespace

RecoveryKeeper::RecoveryKeeper(const std::filesystem::path& directory, Clock clock) : clock_(std::move(clock)) {
  MakeOwnDirectory(directory);
  std::error_code error;
  std::filesystem::permissions(directory, std::filesystem::perms::owner_all, error);
  for (int number = 1; !lock_; ++number) {
    file_ = directory / (std::to_string(ProcessNumber()) + "-" + std::to_string(number) + Extension);
    if (std::filesystem::exists(file_, error)) continue;
    lock_ = ProcessLock::Try(LockOf(file_));
  }
  writer_ = std::make_unique<RecoveryWriter>(file_);
}

RecoveryKeeper::~RecoveryKeeper() {
  writer_.reset();
  std::error_code error;
  if (!std::filesystem::exists(file_, error)) lock_->Remove();
}

void RecoveryKeeper::Watch(const PanelDocument* document) {
  document_ = document;
  stale_.clear();
  sections_.clear();
  if (document_ != nullptr) sections_.resize(document_->Places().size());
  due_ = true;
}

void RecoveryKeeper::Leave() {
  document_ = nullptr;
  due_ = false;
}

void RecoveryKeeper::Changed(std::span<const std::size_t> places) {
  for (const std::size_t place : places) {
    if (sections_.at(place) != nullptr) stale_.insert(place);
  }
  due_ = true;
}

bool RecoveryKeeper::Work(std::size_t elements) {
  if (!due_) return false;
  if (document_ != nullptr && document_->Modified()) {
    if (stale_.empty() && std::ranges::find(sections_, nullptr) != sections_.end()) {  // then none is made yet
      for (std::size_t place = 0; place < sections_.size(); ++place) stale_.insert(stale_.end(), place);
    }
    for (; elements > 0 && !stale_.empty(); --elements) {
      const std::size_t place = *stale_.begin();
      sections_[place] = std::make_shared<std::string>(ProjectWriter::Section(document_->ElementContent(place)));
      stale_.erase(stale_.begin());
    }
    if (!stale_.empty()) return true;
  }
  HandOver();
  return false;
}

void RecoveryKeeper::HandOver() {
  due_ = false;
  if (document_ == nullptr || !document_->Modified()) {
    writer_->Remove();
    return;
  }
  const auto piece = [](std::string text) { return std::make_shared<const std::string>(std::move(text)); };
  RecoveryWriter::Pieces pieces;
  pieces.reserve(sections_.size() + 3);
  pieces.push_back(piece(FormatRecoveryHead({document_->File(), clock_()})));
  pieces.push_back(piece(ProjectWriter::Head(document_->PanelName(), sections_.size(), document_->CarriedPanel())));
  pieces.insert(pieces.end(), sections_.begin(), sections_.end());
  pieces.push_back(piece(std::string(ProjectWriter::Tail)));
  writer_->Write(std::move(pieces));
}

void RecoveryKeeper::Flush() {
  Work(sections_.size());
  writer_->Wait();
}

namespace {

/// Nothing for a file that another holds, or that cannot be locked.
std::optional<ProcessLock> Locked(const std::filesystem::path& file) {
  try {
    return ProcessLock::Try(file);
  } catch (const FileError&) {
    return std::nullopt;
  }
}

/// Removes what programs that were killed have left beside recovery files: halves of new ones, and locks of no file.
void SweepBehindKilled(const std::filesystem::path& directory) {
  std::error_code error;
  for (const std::filesystem::path& half : FilesWith(HalfEnding, directory, error)) {
    const std::string name = TextOf(half.filename());
    const std::size_t end = name.find(Extension);
    if (end == std::string::npos) continue;
    if (const auto lock = Locked(directory / (name.substr(0, end) + LockExtension))) {
      std::filesystem::remove(half, error);
    }
  }
  for (const std::filesystem::path& file : FilesWith(LockExtension, directory, error)) {
    std::filesystem::path work = file;
    if (std::filesystem::exists(work.replace_extension(Extension), error) || error) continue;
    if (std::optional<ProcessLock> lock = Locked(file)) lock->Remove();
  }
}

}  // namespace

std::vector<LostWork> FindLostWork(const std::filesystem::path& directory, std::vector<std::string>& damaged) {
  std::vector<LostWork> found;
  std::vector<std::filesystem::path> files;
  try {
    files = ExistingFilesWith(Extension, directory);
  } catch (const FileError& failure) {
    damaged.emplace_back(failure.what());
  }
  for (const std::filesystem::path& file : files) {
    try {
      std::optional<ProcessLock> lock = ProcessLock::Try(LockOf(file));
      if (!lock) continue;
      RecoveryFile content = ParseRecovery(TextFile(file, ProjectLimit));
      found.push_back({std::move(*lock), file, std::move(content)});
    } catch (const FileError& failure) {
      damaged.emplace_back(failure.what());
    }
  }
  SweepBehindKilled(directory);
  std::ranges::stable_sort(found, std::ranges::greater(), [](const LostWork& one) { return one.content.head.time; });
  return found;
}

void Forget(LostWork& work) {
  std::error_code error;
  std::filesystem::remove(work.source, error);
  if (error) throw FileError(work.source, "cannot be removed: " + error.message());
  work.lock.Remove();
}

}  // namespace plexel

#include "project/recovery_writer.h"

#include <exception>
#include <system_error>

#include "files/file_error.h"
#include "files/system_files.h"

namespace plexel {

RecoveryWriter::RecoveryWriter(std::filesystem::path file) : file_(std::move(file)), thread_([this] { Run(); }) {}

RecoveryWriter::~RecoveryWriter() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  changed_.notify_all();
  thread_.join();
}

void RecoveryWriter::Order(std::optional<Pieces> pieces) {
  {
    const std::lock_guard lock(mutex_);
    pieces_ = std::move(pieces);
    ordered_ = true;
  }
  changed_.notify_all();
}

void RecoveryWriter::Wait() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return !ordered_ && !busy_; });
}

std::string RecoveryWriter::Problem() {
  const std::lock_guard lock(mutex_);
  return problem_;
}

void RecoveryWriter::Run() {
  std::unique_lock lock(mutex_);
  while (true) {
    changed_.wait(lock, [this] { return ordered_ || ending_; });
    if (!ordered_) return;
    const std::optional<Pieces> pieces = std::move(pieces_);
    ordered_ = false;
    busy_ = true;
    lock.unlock();
    std::string problem = CarryOut(pieces);
    lock.lock();
    busy_ = false;
    problem_ = std::move(problem);
    changed_.notify_all();
  }
}

std::string RecoveryWriter::CarryOut(const std::optional<Pieces>& pieces) const {
  try {
    if (!pieces) {
      std::error_code error;
      std::filesystem::remove(file_, error);
      return error ? FileError(file_, "cannot be removed: " + error.message()).what() : std::string();
    }
    std::string text;
    for (const auto& piece : *pieces) text += *piece;
    WriteWholeFile(file_, text);
    return {};
  } catch (const std::exception& failure) {
    return failure.what();
  }
}

}  // namespace plexel

#pragma once

#include <condition_variable>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace plexel {

/// Writes and removes one file on a thread of its own, the latest order alone; all calls come from one other thread.
class RecoveryWriter {
 public:
  /// Pieces of text that are shared with whoever ordered the writing; nobody changes them any more.
  using Pieces = std::vector<std::shared_ptr<const std::string>>;

  explicit RecoveryWriter(std::filesystem::path file);
  /// Carries out the last order first.
  ~RecoveryWriter();
  RecoveryWriter(const RecoveryWriter&) = delete;
  RecoveryWriter& operator=(const RecoveryWriter&) = delete;

  void Write(Pieces pieces) { Order(std::move(pieces)); }
  void Remove() { Order(std::nullopt); }
  /// Waits until the last order is carried out.
  void Wait();
  /// Why the last order failed; empty when it did not.
  std::string Problem();

 private:
  void Order(std::optional<Pieces> pieces);
  void Run();
  std::string CarryOut(const std::optional<Pieces>& pieces) const;

  const std::filesystem::path file_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::optional<Pieces> pieces_;  ///< of the last order; nothing for removing
  bool ordered_ = false, busy_ = false, ending_ = false;
  std::string problem_;
  std::thread thread_;
};

}  // namespace plexel

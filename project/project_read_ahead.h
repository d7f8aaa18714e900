#pragma once

#include <array>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "files/project_reader.h"

namespace plexel {

/// Reads the elements of a project on a thread of its own, some ahead of the one that is made of them. Few elements,
/// and those of a system that gives no thread, are read as they are asked for.
class ProjectReadAhead {
 public:
  /// Starts a thread; std::system_error when there is none to be had.
  using Start = std::function<std::thread(std::function<void()>)>;

  /// Reads the header; FileError for a faulty one. The file must outlive this object.
  explicit ProjectReadAhead(const TextFile& file, const Start& start = StartThread);
  ~ProjectReadAhead();
  ProjectReadAhead(const ProjectReadAhead&) = delete;
  ProjectReadAhead& operator=(const ProjectReadAhead&) = delete;

  const std::string& Panel() const { return reader_.Panel(); }
  /// The text of the panel that the project carries; empty for none.
  const std::string& PanelText() const { return reader_.PanelText(); }
  /// How many elements the header tells of.
  std::uint32_t Count() const { return reader_.Count(); }
  /// The next element, which stays until the next call; null behind the last one, when the end of the file has been
  /// found whole. FileError with the line for what is no whole and proper project, behind the elements above it.
  const ProjectElement* Next();

  /// How many elements the thread hands over at once. A project of no more has none.
  static constexpr std::size_t PortionSize = 64;

 private:
  struct Portion {
    std::vector<ProjectElement> elements;  ///< as many as fit, of which the room is used again
    std::size_t count = 0;
    bool last = false;
    std::exception_ptr failure;  ///< what ended the reading behind the elements
  };

  static std::thread StartThread(std::function<void()> run) { return std::thread(std::move(run)); }
  void Fill(Portion& portion);
  void Run();
  /// Gives the portion in hand back, and waits for the next one.
  void TakePortion();

  ProjectReader reader_;
  std::array<Portion, 4> portions_;
  const Portion* inHand_ = nullptr;
  std::size_t position_ = 0;  ///< in it
  std::mutex mutex_;
  std::condition_variable made_, given_;
  std::size_t filled_ = 0;  ///< portions since the start
  std::size_t taken_ = 0;   ///< portions that were given back
  bool stops_ = false;
  std::thread thread_;
};

}  // namespace plexel

#pragma once

#include <QObject>
#include <QThread>
#include <filesystem>
#include <functional>
#include <optional>
#include <utility>

#include "project/panel_document.h"

namespace plexel {

class FileLooker;

/// Watches the file of a project for what others do to it. Everything that asks the file or its folder runs on a thread
/// of its own, so that a folder on a network that answers late holds up nobody; results come to the thread that this
/// object was made in.
class FileWatch : public QObject {
 public:
  FileWatch();
  /// Waits for a reading that is under way.
  ~FileWatch() override;

  /// Called for each new state of the file; not for the first when nothing differs.
  std::function<void(const PanelDocument::FileState& state)> onChanged;

  /// From now on watches the file that a document knows, and compares it with what the document knows; an empty name
  /// for none. Nothing is told of the file before any more.
  void Watch(const PanelDocument::KnownFile& known);
  /// The document knows something else of the same file. What was told stays told.
  void Know(const PanelDocument::KnownFile& known);

 private:
  using Time = std::filesystem::file_time_type;
  void Found(const PanelDocument::KnownFile& known, const PanelDocument::FileState& state, Time time);
  void Order(const PanelDocument::KnownFile& known);

  PanelDocument::KnownFile known_;
  std::optional<std::pair<PanelDocument::FileState, Time>> told_;
  QThread thread_;
  FileLooker* looker_;  ///< lives on the thread and goes with it
};

}  // namespace plexel

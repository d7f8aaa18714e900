#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "editor/file_watch.h"
#include "project/open_file.h"
#include "project/recovery.h"
#include "project/versions.h"

namespace plexel {

/// Sees to it that nothing of the open project is lost: keeps unsaved work in a recovery file and saved versions, and
/// watches for others who change the file or have it open.
class Safekeeping : public QObject {
 public:
  /// The directory is that of the user's state. What cannot be kept there is told by onProblem.
  explicit Safekeeping(std::filesystem::path directory);
  ~Safekeeping() override;

  /// The file is not what it was, told once for each new state.
  std::function<void(const PanelDocument::FileState&)> onFileChanged;
  /// So many others have the file open; told when that changes.
  std::function<void(std::size_t)> onOthers;
  std::function<void(const QString& reason)> onProblem;

  /// The project that is kept from now on; null for none. The recovery file of the one before is removed.
  void Watch(PanelDocument* document);
  /// Keeps what is about to be replaced, when no version holds it.
  void BeforeSave(const std::filesystem::path& file);
  /// The project was saved, or its file was looked at.
  void Saved();
  /// Brings unsaved work to the disk at once. False, behind onProblem, when it cannot be kept there.
  bool Keep();
  /// The same, and lets it stand there: the project goes without having been saved or given up.
  void Leave();

  const VersionStore& Versions() const { return versions_; }
  std::vector<LostWork> FindLost(std::vector<std::string>& damaged) const;

  /// How long after a change its writing begins, milliseconds.
  static constexpr int Delay = 2000;

 private:
  void Note();
  void Portion();
  void WatchFile();
  void CountOthers();
  void Tell(const std::exception& failure);
  /// What came of the last writing of unsaved work.
  void TellWriting();

  const std::filesystem::path directory_;
  const VersionStore versions_;
  std::optional<RecoveryKeeper> keeper_;
  std::optional<OpenFile> openFile_;
  PanelDocument* document_ = nullptr;
  FileWatch fileWatch_;
  QFileSystemWatcher marks_;  ///< of open files, in the user's own directory
  QTimer delay_, portions_, count_;
  std::size_t others_ = 0;
  std::string problem_;
};

}  // namespace plexel

#include "editor/safekeeping.h"

#include <QDateTime>
#include <exception>
#include <system_error>

#include "files/system_files.h"
#include "qt/units.h"

namespace plexel {

namespace {

/// Elements of one portion: some hundred microseconds of work.
constexpr std::size_t PortionSize = 200;
/// Programs write a file in several steps; it is looked at behind the last one.
constexpr int CheckDelay = 200;

}  // namespace

Safekeeping::Safekeeping(std::filesystem::path directory)
    : directory_(std::move(directory)), versions_(directory_ / "versions") {
  delay_.setSingleShot(true);
  delay_.setInterval(Delay);
  check_.setSingleShot(true);
  check_.setInterval(CheckDelay);
  portions_.setInterval(0);
  connect(&delay_, &QTimer::timeout, this, [this] { portions_.start(); });
  connect(&portions_, &QTimer::timeout, this, [this] { Portion(); });
  connect(&check_, &QTimer::timeout, this, [this] { CheckFile(); });
  const auto look = [this] { check_.start(); };
  connect(&watcher_, &QFileSystemWatcher::fileChanged, this, look);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, look);
}

Safekeeping::~Safekeeping() { Leave(); }

void Safekeeping::Tell(const std::exception& failure) {
  if (problem_ == failure.what()) return;
  problem_ = failure.what();
  if (onProblem) onProblem(ToQt(problem_));
}

void Safekeeping::Watch(PanelDocument* document) {
  document_ = document;
  try {
    if (!keeper_) keeper_.emplace(directory_ / "recovery", [] { return QDateTime::currentSecsSinceEpoch(); });
  } catch (const std::exception& failure) {
    Tell(failure);
  }
  if (keeper_) {
    keeper_->Watch(document);
    if (document != nullptr) {
      document->Listen([this](std::span<const std::size_t> places) {
        keeper_->Changed(places);
        Note();
      });
    }
    keeper_->Flush();
  }
  WatchFile();
}

void Safekeeping::BeforeSave(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return;
  try {
    versions_.Keep(file, ReadWholeFile(file, ProjectLimit), QDateTime::currentMSecsSinceEpoch());
  } catch (const std::exception& failure) {
    Tell(failure);
  }
}

void Safekeeping::Saved() {
  if (document_ == nullptr) return;
  if (keeper_) {
    keeper_->Saved();
    Note();
  }
  BeforeSave(document_->File());
  WatchFile();
}

void Safekeeping::Keep() {
  if (keeper_) keeper_->Flush();
}

void Safekeeping::Leave() {
  Keep();
  if (keeper_) keeper_->Leave();
  document_ = nullptr;
  WatchFile();
}

std::vector<LostWork> Safekeeping::FindLost(std::vector<std::string>& damaged) const {
  return FindLostWork(directory_ / "recovery", damaged);
}

/// The first change behind a writing begins the delay; those that follow do not lengthen it.
void Safekeeping::Note() {
  if (!delay_.isActive() && !portions_.isActive()) delay_.start();
}

void Safekeeping::Portion() {
  if (keeper_->Work(PortionSize)) return;
  portions_.stop();
  if (const std::string problem = keeper_->Problem(); problem != problem_) {
    problem_ = problem;
    if (!problem.empty() && onProblem) onProblem(ToQt(problem));
  }
}

void Safekeeping::WatchFile() {
  if (const QStringList watched = watcher_.files() + watcher_.directories(); !watched.isEmpty()) {
    watcher_.removePaths(watched);
  }
  told_.reset();
  openFile_.reset();
  others_ = 0;
  if (document_ == nullptr || document_->File().empty()) return;
  const std::filesystem::path file = document_->File();
  try {
    openFile_.emplace(directory_ / "open", file);
    watcher_.addPath(ToQt((directory_ / "open").string()));
  } catch (const std::exception& failure) {
    Tell(failure);
  }
  watcher_.addPath(ToQt(file.string()));
  watcher_.addPath(ToQt(file.has_parent_path() ? file.parent_path().string() : std::string(".")));
  check_.start();
}

void Safekeeping::CheckFile() {
  if (document_ == nullptr || document_->File().empty()) return;
  if (openFile_) {
    const std::size_t others = openFile_->Others();
    if (others != others_ && onOthers) onOthers(others);
    others_ = others;
  }
  const QString file = ToQt(document_->File().string());
  if (!watcher_.files().contains(file)) watcher_.addPath(file);
  const PanelDocument::OnDisk now = document_->FileNow();
  std::error_code error;
  const std::pair state(now, std::filesystem::last_write_time(document_->File(), error));
  if (told_ == state) return;
  const bool first = !told_;
  told_ = state;
  if (now == PanelDocument::OnDisk::Same && first) return;
  if (onFileChanged) onFileChanged(now);
  if (keeper_) {  // what the project holds may be nowhere else any more
    keeper_->Saved();
    Note();
  }
}

}  // namespace plexel

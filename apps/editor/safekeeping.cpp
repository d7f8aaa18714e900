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
/// A program that begins or ends puts its mark in several steps; they are counted behind the last one.
constexpr int CountDelay = 200;

}  // namespace

Safekeeping::Safekeeping(std::filesystem::path directory)
    : directory_(std::move(directory)), versions_(directory_ / "versions") {
  delay_.setSingleShot(true);
  delay_.setInterval(Delay);
  count_.setSingleShot(true);
  count_.setInterval(CountDelay);
  portions_.setInterval(0);
  connect(&delay_, &QTimer::timeout, this, [this] { portions_.start(); });
  connect(&portions_, &QTimer::timeout, this, [this] { Portion(); });
  connect(&count_, &QTimer::timeout, this, [this] { CountOthers(); });
  connect(&marks_, &QFileSystemWatcher::directoryChanged, this, [this] { count_.start(); });
  fileWatch_.onChanged = [this](const PanelDocument::FileState& state) {
    if (onFileChanged) onFileChanged(state);
    if (document_ == nullptr) return;
    fileWatch_.Know(document_->Known());
    if (keeper_) {  // what the project holds may be nowhere else any more
      keeper_->Saved();
      Note();
    }
  };
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
  }
  Keep();
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

bool Safekeeping::Keep() {
  if (document_ == nullptr || !document_->Modified()) {
    if (keeper_) keeper_->Flush();
    return true;
  }
  if (!keeper_) return false;
  keeper_->Flush();
  TellWriting();
  return problem_.empty();
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
  TellWriting();
}

void Safekeeping::TellWriting() {
  if (const std::string problem = keeper_->Problem(); problem != problem_) {
    problem_ = problem;
    if (!problem.empty() && onProblem) onProblem(ToQt(problem));
  }
}

void Safekeeping::WatchFile() {
  if (const QStringList watched = marks_.directories(); !watched.isEmpty()) marks_.removePaths(watched);
  openFile_.reset();
  others_ = 0;
  const bool any = document_ != nullptr && !document_->File().empty();
  fileWatch_.Watch(any ? document_->Known() : PanelDocument::KnownFile());
  if (!any) return;
  try {
    openFile_.emplace(directory_ / "open", document_->File());
    marks_.addPath(ToQt((directory_ / "open").string()));
  } catch (const std::exception& failure) {
    Tell(failure);
  }
  count_.start();
}

void Safekeeping::CountOthers() {
  if (!openFile_) return;
  try {
    const std::size_t others = openFile_->Others();
    if (others != others_ && onOthers) onOthers(others);
    others_ = others;
  } catch (const std::exception& failure) {
    Tell(failure);
  }
}

}  // namespace plexel

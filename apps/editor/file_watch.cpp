#include "editor/file_watch.h"

#include <QFileSystemWatcher>
#include <QTimer>
#include <cstdint>
#include <string>
#include <system_error>

#include "qt/units.h"

namespace plexel {

namespace {

/// Programs write a file in several steps; it is looked at behind the last one. Milliseconds.
constexpr int Delay = 200;
/// Folders on a network do not tell what other machines do in them.
constexpr int GlanceInterval = 2000;

}  // namespace

/// Asks the file. All but the making runs on the thread of its own.
class FileLooker : public QObject {
 public:
  using Time = std::filesystem::file_time_type;
  using Result = std::function<void(const PanelDocument::KnownFile&, const PanelDocument::FileState&, Time)>;
  explicit FileLooker(Result result) : result_(std::move(result)) {}

  /// Makes what belongs to the thread.
  void Begin() {
    watcher_ = new QFileSystemWatcher(this);
    delay_ = new QTimer(this);
    delay_->setSingleShot(true);
    delay_->setInterval(Delay);
    connect(delay_, &QTimer::timeout, this, [this] { Look(); });
    glances_ = new QTimer(this);
    glances_->setInterval(GlanceInterval);
    connect(glances_, &QTimer::timeout, this, [this] { Glance(); });
    const auto soon = [this] { delay_->start(); };
    connect(watcher_, &QFileSystemWatcher::fileChanged, this, soon);
    connect(watcher_, &QFileSystemWatcher::directoryChanged, this, soon);
  }

  void Watch(const PanelDocument::KnownFile& known) {
    if (known.file != known_.file) {
      if (const QStringList watched = watcher_->files() + watcher_->directories(); !watched.isEmpty()) {
        watcher_->removePaths(watched);
      }
    }
    known_ = known;
    seen_ = {};
    if (known_.file.empty()) {
      delay_->stop();
      glances_->stop();
    } else {
      delay_->start();
      glances_->start();
    }
  }

 private:
  /// By which a change is noticed without reading.
  struct Sight {
    std::uintmax_t size = 0;
    Time time;
    bool operator==(const Sight&) const = default;
  };
  Sight Seen() const {
    std::error_code error;
    Sight seen;
    seen.size = std::filesystem::file_size(known_.file, error);
    seen.time = std::filesystem::last_write_time(known_.file, error);
    return seen;
  }

  void Glance() {
    if (Seen() != seen_) delay_->start();
  }

  void Look() {
    const std::filesystem::path folder = known_.file.has_parent_path() ? known_.file.parent_path() : ".";
    for (const std::filesystem::path& path : {known_.file, folder}) {
      const QString name = ToQt(path.string());
      if (!watcher_->files().contains(name) && !watcher_->directories().contains(name)) watcher_->addPath(name);
    }
    seen_ = Seen();
    result_(known_, PanelDocument::Compare(known_), seen_.time);
  }

  Result result_;
  QFileSystemWatcher* watcher_ = nullptr;
  QTimer *delay_ = nullptr, *glances_ = nullptr;
  PanelDocument::KnownFile known_;
  Sight seen_;
};

FileWatch::FileWatch() {
  looker_ =
      new FileLooker([this](const PanelDocument::KnownFile& known, const PanelDocument::FileState& state, Time time) {
        QMetaObject::invokeMethod(this, [=, this] { Found(known, state, time); });
      });
  looker_->moveToThread(&thread_);
  connect(&thread_, &QThread::finished, looker_, &QObject::deleteLater);
  thread_.start();
  QMetaObject::invokeMethod(looker_, [looker = looker_] { looker->Begin(); });
}

FileWatch::~FileWatch() {
  thread_.quit();
  thread_.wait();
}

void FileWatch::Watch(const PanelDocument::KnownFile& known) {
  told_.reset();
  Order(known);
}

void FileWatch::Know(const PanelDocument::KnownFile& known) {
  if (known != known_) Order(known);
}

void FileWatch::Order(const PanelDocument::KnownFile& known) {
  known_ = known;
  QMetaObject::invokeMethod(looker_, [looker = looker_, known] { looker->Watch(known); });
}

void FileWatch::Found(const PanelDocument::KnownFile& known, const PanelDocument::FileState& state, Time time) {
  if (known != known_) return;  // a look that was under way when something else was asked for
  const std::pair found(state, time);
  if (told_ == found) return;
  const bool first = !told_;
  told_ = found;
  if ((state.now != PanelDocument::OnDisk::Same || !first) && onChanged) onChanged(state);
}

}  // namespace plexel

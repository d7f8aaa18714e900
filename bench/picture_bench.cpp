// Frames of the picture of a large panel, scrolled and zoomed in the editor's window. The peer is a bare QGraphicsView
// with as many boxes that have a text each; the two draw frame by frame in turn.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

#include "desktop.h"
#include "editor/main_window.h"
#include "editor/panel_scroll.h"
#include "editor/panel_view.h"
#include "made_project.h"
#include "qt/fonts.h"
#include "qt/units.h"
#include "thread_time.h"

namespace {

using namespace plexel;

/// Counts the paintings of a widget.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
};

/// The editor's window with a made project.
class EditorPicture {
 public:
  explicit EditorPicture(std::int64_t count) {
    const std::filesystem::path directory = files_.path().toStdString();
    file_ = directory / "bench.plexel";
    bench::MakeProject({desktop_.component, desktop_.host, nullptr, directory}, count)->Save(file_);
    window_ = std::make_unique<MainWindow>(desktop_.component, desktop_.surroundings, desktop_.platform, desktop_.help,
                                           directory / "state");
    window_->show();
    Open();
    scroll_ = window_->findChild<PanelScroll*>();
    painted_ = std::make_unique<PaintCount>(window_->View());
  }
  void Open() {
    window_->OpenProject(file_);
    QCoreApplication::processEvents();
  }
  QSize Room() const { return scroll_->viewport()->size(); }
  const Panel& ThePanel() const { return window_->Document()->ThePanel(); }
  void ScrollTo(QPoint place) {
    scroll_->horizontalScrollBar()->setValue(place.x());
    scroll_->verticalScrollBar()->setValue(place.y());
  }
  void Zoom(int percent) { window_->SetZoom(percent); }
  void Layer(std::int32_t layer) { window_->ShowLayer(layer); }
  int Painted() const { return painted_->count; }

 private:
  QTemporaryDir files_;
  std::filesystem::path file_;
  bench::Desktop desktop_;
  std::unique_ptr<MainWindow> window_;
  PanelScroll* scroll_ = nullptr;
  std::unique_ptr<PaintCount> painted_;
};

/// A box with a text.
class PeerItem : public QGraphicsRectItem {
 public:
  PeerItem(const QRectF& box, QString text) : QGraphicsRectItem(box), text_(std::move(text)) { setBrush(Qt::white); }
  void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override {
    QGraphicsRectItem::paint(painter, option, widget);
    painter->drawText(rect(), Qt::AlignCenter, text_);
  }

 private:
  QString text_;
};

class PeerPicture {
 public:
  PeerPicture(const Panel& panel, QSize room) {
    QFont font = DialogFont();
    font.setPixelSize(9);
    scene_.setFont(font);
    for (const PanelPart& part : panel.parts) {
      const PanelBox& box = part.box;
      scene_.addItem(new PeerItem(QRectF(box.left, box.top, box.width, box.height), ToQt(part.legend)));
    }
    view_.setFrameShape(QFrame::NoFrame);
    view_.setScene(&scene_);
    view_.show();
    view_.resize(room + view_.size() - view_.viewport()->size());
    QCoreApplication::processEvents();
  }
  void ScrollTo(QPoint place) {
    view_.horizontalScrollBar()->setValue(place.x());
    view_.verticalScrollBar()->setValue(place.y());
  }
  void Zoom(int percent) { view_.setTransform(QTransform::fromScale(percent / 100.0, percent / 100.0)); }
  int Painted() const { return painted_.count; }

 private:
  QGraphicsScene scene_;
  QGraphicsView view_{};
  PaintCount painted_{*view_.viewport()};
};

/// The times of frames, milliseconds.
class Frames {
 public:
  /// Times an act up to its picture; false when nothing was painted.
  template <typename Picture>
  bool Time(Picture& picture, const std::function<void()>& act) {
    const int before = picture.Painted();
    const double start = bench::ThreadSeconds();
    act();
    QCoreApplication::processEvents();
    times_.push_back((bench::ThreadSeconds() - start) * 1e3);
    return picture.Painted() != before;
  }
  double Share(double share) {
    std::ranges::sort(times_);
    return times_.at(static_cast<std::size_t>(share * static_cast<double>(times_.size() - 1)));
  }

 private:
  std::vector<double> times_;
};

struct Pictures {
  EditorPicture editor{20000};
  PeerPicture peer{editor.ThePanel(), editor.Room()};
};

/// Made at the first call, and gone ahead of the application.
Pictures& ThePictures() {
  static std::unique_ptr<Pictures> pictures;
  if (!pictures) {
    pictures = std::make_unique<Pictures>();
    qAddPostRoutine([] { pictures.reset(); });
  }
  return *pictures;
}

/// Opens the project in the window, up to its picture.
void OpenInTheWindow(benchmark::State& state) {
  EditorPicture& editor = ThePictures().editor;
  for (auto _ : state) editor.Open();
}
BENCHMARK(OpenInTheWindow)->Unit(benchmark::kMillisecond);

void Tell(benchmark::State& state, Frames& editor, Frames& peer) {
  state.counters["editor_median_ms"] = editor.Share(0.5);
  state.counters["editor_99th_ms"] = editor.Share(0.99);
  state.counters["peer_median_ms"] = peer.Share(0.5);
  state.counters["peer_99th_ms"] = peer.Share(0.99);
}

/// Scrolls down and aside, a notch of the wheel in each frame.
void ScrollPicture(benchmark::State& state) {
  constexpr int notch = 60, frames = 400;
  auto& [editor, peer] = ThePictures();
  const int percent = static_cast<int>(state.range(0));
  editor.Zoom(percent);
  peer.Zoom(percent);
  const QSize room(std::max(1, 8000 * percent / 100 - editor.Room().width()),
                   std::max(1, 4000 * percent / 100 - editor.Room().height()));
  Frames editorFrames, peerFrames;
  for (auto _ : state) {
    for (int frame = 1; frame <= frames; ++frame) {
      // There and back again, so that each frame moves.
      const auto along = [](int way, int length) {
        const int there = way % (2 * length);
        return there < length ? there : 2 * length - there;
      };
      const QPoint place(along(frame * notch / 4, room.width()), along(frame * notch, room.height()));
      if (!editorFrames.Time(editor, [&] { editor.ScrollTo(place); }) ||
          !peerFrames.Time(peer, [&] { peer.ScrollTo(place); })) {
        return state.SkipWithError("a frame was not painted");
      }
    }
  }
  Tell(state, editorFrames, peerFrames);
}
BENCHMARK(ScrollPicture)->ArgName("percent")->Arg(25)->Arg(50)->Arg(100)->Arg(400)->Iterations(1);

/// Goes through the steps of the zoom, in and out.
void ZoomPicture(benchmark::State& state) {
  constexpr std::array steps = {50, 75, 100, 125, 150, 200, 250, 300, 400, 300, 250, 200, 150, 125, 100, 75, 50, 25};
  constexpr int rounds = 10;
  auto& [editor, peer] = ThePictures();
  Frames editorFrames, peerFrames;
  for (auto _ : state) {
    for (int round = 0; round < rounds; ++round) {
      for (const int percent : steps) {
        if (!editorFrames.Time(editor, [&] { editor.Zoom(percent); }) ||
            !peerFrames.Time(peer, [&] { peer.Zoom(percent); })) {
          return state.SkipWithError("a frame was not painted");
        }
      }
    }
  }
  Tell(state, editorFrames, peerFrames);
}
BENCHMARK(ZoomPicture)->Iterations(1);

}  // namespace

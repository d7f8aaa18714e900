#pragma once

#include <QStringList>
#include <QWidget>
#include <functional>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include "editor/place_index.h"
#include "editor/selection.h"
#include "editor/sprites.h"
#include "project/panel_document.h"
#include "project/problem.h"

class QRubberBand;

namespace plexel {

/// The picture of a panel. The current element of the selection has the focus; the user moves it with mouse, Tab and
/// arrow keys, chooses more with the mouse and Ctrl or Shift, and everything else that he does on an element goes to
/// that element. Only what has changed, of what is exposed, is painted.
class PanelView : public QWidget {
 public:
  /// The selection must outlive all use of the view; without a document the view leaves it alone.
  explicit PanelView(Selection& selection, QWidget* parent = nullptr);

  /// Null takes the document away. The first element gets the focus.
  void Show(PanelDocument* document);
  /// The element with the focus, null when there is none.
  ctlPlexelBaseElement* Selected() const;
  /// Makes the element of a place the current one, and the only one chosen.
  void Select(int place);
  /// Takes over a changed zoom.
  void Rescale();
  /// Where a place lies in the view.
  QRect PlaceRect(int place) const;
  /// The places that meet a rectangle of the view, in the order of drawing.
  std::vector<int> PlacesIn(const QRect& area) const;
  /// The place under a point, -1 for none.
  int PlaceAt(const QPoint& point) const;
  /// An element looks different or holds something else.
  void ElementChanged(const ctlPlexelBaseElement& element);

  /// The layer that ticks and labels tell of, 1 to 4, or AllLayersShown.
  std::int32_t Layer() const { return layer_; }
  void Layer(std::int32_t layer);
  /// Whether keys have a label that tells what they are defined as.
  bool Labels() const { return labels_; }
  void Labels(bool shown);

  /// Marks the places that a search has found, ascending; none takes the marks away.
  void Found(const std::vector<int>& places);

  /// Where the panel begins in the view.
  QPoint Origin() const;
  /// The room round the panel that the view keeps at least, pixels.
  static constexpr int Margin = 24;

  /// The graver level of the problems of a place, for its badge, and what its tool tip tells of them.
  std::function<std::optional<ProblemLevel>(int place)> problemOf;
  std::function<QStringList(int place)> problemTexts;
  /// Where a place has its badge.
  QRect BadgeRect(int place) const;
  /// The badges of some places may be others; the places ascend.
  void BadgesChanged(std::span<const std::size_t> places);

  std::function<void(const QPoint& globalPlace)> onMenu;
  std::function<void()> onProperties;
  /// Return on an element, which answers to it by `act`.
  std::function<void(ctlPlexelBaseElement& element, const std::function<void()>& act)> onReturn;
  /// A step of the zoom, up or down, about a point of the view.
  std::function<void(int steps, const QPoint& about)> onZoom;
  /// The user draws the picture along.
  std::function<void(const QPoint& way)> onPan;
  /// The user draws an element away; returns when it was dropped or given up.
  std::function<void(int place)> onDrag;
  /// A text was dropped on the element of a place; `from` is the place of this view from where it was drawn, -1 for
  /// elsewhere.
  std::function<void(int from, int onto, const QString& text, bool swap)> onDrop;
  /// Runs what the user set off, and sees to its failures.
  std::function<void(const std::function<void()>&)> run;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  using Place = PanelDocument::Place;
  const Place& At(int place) const { return document_->Places()[static_cast<std::size_t>(place)]; }
  /// What an element shows at the present zoom.
  const Surface& SurfaceAt(int place) const;
  void MakeIndexes();
  /// The place that lies nearest in a direction, -1 for none.
  int Neighbour(const QPoint& direction) const;
  /// Brings focus and marks into line with the selection.
  void SelectionChanged();
  /// Moves the focus from element to element as a container does.
  void MoveFocus(int place);
  /// Chooses what lies between the anchor of the choice and a place, which becomes the current one.
  void ExtendTo(int place);
  void PaintParts(QPainter& painter, const std::vector<int>& parts);
  void PaintPlace(QPainter& painter, int place);
  void PaintBadge(QPainter& painter, int place);
  void UpdatePlace(int place);
  /// A rectangle of the view as one of the panel at zoom 100, a little larger.
  QRect OnPanel(const QRect& area) const;

  void BeginBand(const QMouseEvent& event);
  void MoveBand(const QPoint& to);
  /// Keeps what the band has chosen, or what was chosen before.
  void EndBand(bool keep);
  bool BeginPan(const QMouseEvent& event);
  bool BeginDrag(const QMouseEvent& event);
  void ShowCursor(const QPoint& at);
  void ShowTip(const QPoint& at, const QPoint& globalPlace);

  Selection& selection_;
  PanelDocument* document_ = nullptr;
  std::unordered_map<const ctlPlexelBaseElement*, int> placeOf_;
  PlaceIndex places_, parts_;         ///< at zoom 100
  Sprites sprites_;                   ///< of bodies, ticks and badges
  int focused_ = -1;                  ///< the place whose element has the focus
  std::vector<bool> marked_;          ///< which places the picture marks as chosen
  std::vector<bool> found_;           ///< which places a search has found
  int dirty_ = 0;                     ///< how many places were to be painted anew since the last painting
  mutable bool followsZoom_ = false;  ///< an element is being brought in line with the zoom: it is drawn next
  std::int32_t layer_ = 0;
  bool labels_ = false;

  int pressed_ = -1, dragged_ = -1;
  QPoint pressedAt_;
  QRubberBand* band_ = nullptr;
  QPoint bandFrom_;
  std::vector<int> bandBase_;  ///< what was chosen at the band's beginning and stays
  std::vector<int> chosenBefore_;
  bool spaceHeld_ = false, panning_ = false;
  QPoint panFrom_;  ///< on the screen
};

}  // namespace plexel

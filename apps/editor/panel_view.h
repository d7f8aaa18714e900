#pragma once

#include <QWidget>
#include <functional>

#include "project/panel_document.h"

namespace plexel {

/// The picture of a panel. One element has the focus; the user moves it with mouse, Tab and arrow keys, and everything
/// else that he does on an element goes to that element.
class PanelView : public QWidget {
 public:
  explicit PanelView(QWidget* parent = nullptr);

  /// Null takes the document away. The first element gets the focus.
  void Show(PanelDocument* document);
  /// The element with the focus, null when there is none.
  ctlPlexelBaseElement* Selected() const;
  /// Gives the focus to the element of a place.
  void Select(int place);
  /// Takes over a changed zoom.
  void Rescale();
  /// Where a place lies in the view.
  QRect PlaceRect(int place) const;

  std::function<void()> onSelected;
  std::function<void(const QPoint& globalPlace)> onMenu;
  std::function<void()> onProperties;
  /// A step of the zoom, up or down.
  std::function<void(int steps)> onZoom;
  /// Runs what the user set off, and sees to its failures.
  std::function<void(const std::function<void()>&)> run;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  int PlaceAt(const QPoint& point) const;
  QPoint Origin() const;
  /// The place that lies nearest in a direction, -1 for none.
  int Neighbour(const QPoint& direction) const;
  /// Moves the focus from element to element as a container does.
  void MoveFocus(int place);

  PanelDocument* document_ = nullptr;
  int selected_ = -1;
  int pressed_ = -1;
};

}  // namespace plexel

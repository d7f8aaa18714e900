#pragma once

#include <QAbstractScrollArea>
#include <functional>

#include "forms/grid_shot.h"

namespace plexel {

/// Draws a grid and tells what the mouse does on it. It moves nothing by itself.
class GridWidget : public QAbstractScrollArea {
 public:
  /// A place on the grid: a cell, or row and column -1 beside all cells; x and y in twips in the grid.
  struct Spot {
    int row = -1, col = -1;
    float x = 0, y = 0;
    bool OnCell() const { return row >= 0 && col >= 0; }
  };
  /// What the user does. Buttons and shift state are those of the form model.
  struct Listener {
    std::function<void(const Spot&, std::int16_t button, std::int16_t shift)> pressed;
    std::function<void(const Spot&)> clicked;
    std::function<void(const Spot&)> doubleClicked;
    std::function<void(int col, int width)> resized;
    std::function<void(int topRow, int leftCol)> scrolled;
  };

  GridWidget(const Grid& model, QWidget& parent, Listener listener);
  /// Takes over what the model shows, unless its redrawing is off.
  void Sync();
  /// The place of a cell in the viewport; empty when it is scrolled out of view.
  QRect CellRect(int row, int col) const;
  /// What is drawn.
  const GridShot& Drawn() const { return shot_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  bool viewportEvent(QEvent* event) override;

 private:
  void SyncScrollBars();
  void DrawCell(QPainter& painter, int row, int col, const QRect& place) const;
  QString TextAt(int row, int col) const;
  /// The place of a cell's text.
  QRect TextRect(int row, int col) const;
  Spot SpotAt(const QPoint& point) const;
  /// The column whose right edge in the header lies at a point, or -1.
  int EdgeAt(const QPoint& point) const;

  const Grid& model_;
  Listener listener_;
  GridShot shot_;
  Spot pressed_;
  int resizedCol_ = -1, resizeFrom_ = 0, resizeWidth_ = 0;
  bool syncing_ = false;
};

}  // namespace plexel

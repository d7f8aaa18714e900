#pragma once

#include "forms/grid_shot.h"
#include "win32/control_view.h"

namespace plexel {

class GridAccessible;

/// Draws a grid and hands over what the user does on it. It moves nothing by itself.
class GridView : public ControlView {
 public:
  GridView(Grid& model, HWND parent, ViewFrame& frame);
  ~GridView() override;
  bool TakesMouseItself() const override { return true; }
  std::optional<LRESULT> Ahead(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  std::wstring ToolTipAt(POINT point) const override;

  /// What the user may do on it, for whoever acts in his place.
  void GoTo(int row, int col);
  void DoubleClick(int row, int col);
  Grid& Cells() const { return model_; }
  /// What is drawn.
  const GridShot& Drawn() const { return shot_; }
  /// The place of a cell in the window; empty when it is scrolled out of view.
  RECT CellRect(int row, int col) const;
  /// The cell at a point of the window; row and column -1 beside all cells.
  struct Spot {
    int row = -1, col = -1;
    bool OnCell() const { return row >= 0 && col >= 0; }
  };
  Spot SpotAt(POINT point) const;
  /// The text of a cell as it is drawn.
  std::wstring TextAt(int row, int col) const;

 protected:
  /// Takes over what the model shows, unless its redrawing is off.
  void SyncMore() override;

 private:
  void TellReaders(const GridShot& before) const;
  void SyncScrollBars();
  void Paint();
  void Draw(HDC context, const RECT& area);
  void DrawCell(HDC context, int row, int col, const RECT& place);
  RECT TextRect(int row, int col) const;
  /// The column whose right edge in the header lies at a point, or -1.
  int EdgeAt(POINT point) const;
  void Pressed(UINT message, WPARAM keys, POINT point);
  void Moved(POINT point);
  void Wheel(WPARAM wParam);
  void ScrollBar(int bar, int request);
  void ScrollTo(int topRow, int leftCol);

  Grid& model_;
  GridShot shot_;
  GridAccessible* accessible_ = nullptr;  ///< for readers of the screen, once one has asked
  bool taken_ = false;
  int resizedCol_ = -1, resizeFrom_ = 0, resizeWidth_ = 0;
};

}  // namespace plexel

#include "qt/grid_view.h"

namespace plexel {

GridView::GridView(Grid& model, QWidget& parent, UserActs& acts)
    : ControlView(model), model_(model), widget_(new GridWidget(model, parent, Listen(acts))) {}

GridWidget::Listener GridView::Listen(UserActs& acts) {
  GridWidget::Listener listener;
  listener.pressed = [this, &acts](const GridWidget::Spot& spot, std::int16_t button, std::int16_t shift) {
    acts.Carry(model_, [&](Hand& hand) { hand.MouseDown(model_, button, shift, spot.x, spot.y); });
  };
  listener.clicked = [this, &acts](const GridWidget::Spot& spot) {
    acts.Carry(model_, [&](Hand& hand) { hand.Click(model_, spot.row, spot.col); });
  };
  listener.doubleClicked = [this, &acts](const GridWidget::Spot& spot) {
    acts.Carry(model_, [&](Hand& hand) {
      if (spot.OnCell()) {
        hand.DblClick(model_, spot.row, spot.col);
      } else {
        hand.DblClick(model_);
      }
    });
  };
  listener.resized = [this, &acts](int col, int width) {
    acts.Carry(model_, [&](Hand& hand) { hand.ResizeColumn(model_, col, width); });
  };
  listener.scrolled = [this, &acts](int topRow, int leftCol) {
    acts.Carry(model_, [&](Hand& hand) { hand.Scroll(model_, topRow, leftCol); });
  };
  return listener;
}

}  // namespace plexel

#pragma once

#include <QScrollArea>
#include <functional>
#include <optional>

namespace plexel {

class PanelView;

/// The part of the window in which the picture of the panel lies: zooms about a point, draws the picture along, and
/// brings elements into sight.
class PanelScroll : public QScrollArea {
 public:
  /// Takes the view over.
  explicit PanelScroll(PanelView* view);

  /// Sets a zoom, in percent, by way of `set`, which gives it to the document. What lies under the point of the view
  /// stays where it is; without a point that is the middle of what is to be seen.
  void Zoom(int before, const std::function<int()>& set, std::optional<QPoint> about = std::nullopt);
  /// Percent at which a panel of this size is to be seen whole.
  int FittingZoom(const QSize& panel) const;
  /// Draws the picture along.
  void Pan(const QPoint& way);
  /// Brings a place into sight.
  void Reveal(int place);

 private:
  PanelView* view_;
};

}  // namespace plexel

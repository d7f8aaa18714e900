#pragma once

#include <QColor>
#include <QContextMenuEvent>
#include <QWidget>
#include <functional>
#include <set>
#include <vector>

#include "project/panel_document.h"
#include "project/trial.h"

namespace plexel {

/// Lies over a picture of a panel, whose size it takes. What is pressed on it goes to a trial; it shows what is held,
/// which elements have left a key down, and which LEDs are lit. Wheel and arrow keys are left to the picture.
///
/// The left button holds an element until it comes up, the right one until the element is clicked again, and Space or
/// Return hold the current element.
class TrialLayer : public QWidget {
 public:
  /// How the picture shows the panel: where it begins in the widget, and the scale.
  struct Picture {
    std::function<QPoint()> origin;
    std::function<double()> scale;
  };
  static constexpr QColor HeldColour{0x1F, 0x5F, 0xA8}, LeftDownColour{0xD0, 0x20, 0x20};
  /// The trial must outlive the layer.
  TrialLayer(Trial& trial, QWidget* under, Picture picture);

  /// The panel that is pressed; null for none, and then nothing is held.
  void Show(const PanelDocument* document);
  /// Where a place lies on the layer.
  QRect PlaceRect(std::size_t place) const;
  /// Nothing is held by hand any more; the trial is not told.
  void Forget();

  /// The element that keys press, -1 for none.
  std::function<int()> current;
  /// An element is to be the current one.
  std::function<void(int place)> onCurrent;
  /// Tab and Shift+Tab.
  std::function<void(bool next)> onTab;
  /// Behind each press and release.
  std::function<void(const Trial::Event& event)> onEvent;
  std::function<void()> onEscape;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseMoveEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override { event->accept(); }
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  struct LedPart {
    const PanelPart* part;
    std::size_t place;
  };
  QRect RectOf(const PanelBox& box) const;
  /// The key under a point, NoPlace for none.
  std::size_t KeyAt(const QPoint& point) const;
  bool IsKey(std::size_t place) const;
  void FindLeds();
  void Press(std::size_t place);
  void Release(std::size_t place);
  /// Lets go of what the mouse and the keyboard hold, each by itself.
  void FreeMouse();
  void FreeKeyboard();

  Trial& trial_;
  Picture picture_;
  const PanelDocument* document_ = nullptr;
  std::vector<LedPart> leds_;
  std::size_t byMouse_ = Trial::NoPlace, byKeyboard_ = Trial::NoPlace;
  int heldKey_ = 0;                ///< of the keyboard
  std::set<std::size_t> latched_;  ///< held until they are clicked again
};

}  // namespace plexel

#include "editor/panel_view.h"

#include <QAction>
#include <QComboBox>
#include <QMimeData>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>
#include <algorithm>
#include <cstdlib>

#include "editor/element_text.h"
#include "editor/log_panel.h"
#include "editor_fixture.h"
#include "qt/panel_painter.h"
#include "services/dialogs.h"

namespace plexel::testing {
namespace {

/// The editor with acts of the mouse on its picture.
class PictureOfAPanel : public Editor {
 protected:
  PictureOfAPanel() {
    window.activateWindow();
    window.View().setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  QStringList Chosen() {
    QStringList names;
    for (const int place : window.TheSelection().Chosen()) {
      names.append(
          QString::fromStdString(window.Document()->Places()[static_cast<std::size_t>(place)].element->Name()));
    }
    return names;
  }
  void Click(const std::string& id, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseClick(&window.View(), Qt::LeftButton, modifiers, Middle(id));
  }
  void Band(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mousePress(&window.View(), Qt::LeftButton, modifiers, from);
    Move(to, Qt::LeftButton);
  }
  void Move(const QPoint& to, Qt::MouseButtons buttons) {
    QMouseEvent event(QEvent::MouseMove, to, window.View().mapToGlobal(to), Qt::NoButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&window.View(), &event);
  }
  void Wheel(int angle, const QPoint& at) {
    QWheelEvent event(at, window.View().mapToGlobal(at), QPoint(), QPoint(0, angle), Qt::NoButton, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window.View(), &event);
  }
  QScrollArea& Scroll() { return *window.findChild<QScrollArea*>(); }
  QPoint Above(const std::string& id) { return window.View().PlaceRect(PlaceOf(id)).topLeft() - QPoint(2, 2); }
};

TEST_F(PictureOfAPanel, CtrlClickTogglesAndAClickChoosesOneAgain) {
  Click("F1");
  Click("F3", Qt::ControlModifier);
  Click("F5", Qt::ControlModifier);
  EXPECT_EQ(Chosen(), QStringList({"F1", "F3", "F5"}));
  EXPECT_EQ(window.View().Selected()->Name(), "F5");
  EXPECT_TRUE(window.StatusText().contains("3 elements selected")) << window.StatusText().toStdString();
  Click("F3", Qt::ControlModifier);
  EXPECT_EQ(Chosen(), QStringList({"F1", "F5"}));
  Click("F2");
  EXPECT_EQ(Chosen(), QStringList("F2"));
  EXPECT_FALSE(window.StatusText().contains("elements selected"));
}

TEST_F(PictureOfAPanel, ShiftClickChoosesTheRowOrTheBlockBetween) {
  Click("F2");
  Click("F4", Qt::ShiftModifier);
  EXPECT_EQ(Chosen(), QStringList({"F2", "F3", "F4"}));
  Click("F15", Qt::ShiftModifier);
  EXPECT_EQ(Chosen(), QStringList({"F2", "F3", "F14", "F15"}));
}

TEST_F(PictureOfAPanel, ShiftWithAnArrowExtendsTheChoice) {
  Click("F2");
  Press(Qt::Key_Right, Qt::ShiftModifier);
  Press(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(Chosen(), QStringList({"F2", "F3", "F4"}));
  Press(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(Chosen(), QStringList({"F2", "F3"}));
}

TEST_F(PictureOfAPanel, ABandChoosesWhatItMeetsAndCtrlAddsToIt) {
  Band(Above("F1"), Middle("F3"));
  EXPECT_EQ(Chosen(), QStringList({"F1", "F2", "F3"}));
  QTest::mouseRelease(&window.View(), Qt::LeftButton, Qt::NoModifier, Middle("F3"));
  EXPECT_EQ(window.View().Selected()->Name(), "F1");
  Band(Above("F13"), Middle("F13"), Qt::ControlModifier);
  QTest::mouseRelease(&window.View(), Qt::LeftButton, Qt::ControlModifier, Middle("F13"));
  EXPECT_EQ(Chosen(), QStringList({"F1", "F2", "F3", "F13"}));
}

TEST_F(PictureOfAPanel, EscapeGivesABandUpAndWithoutOneChoosesNothing) {
  Click("F7");
  Band(Above("F1"), Middle("F3"));
  Press(Qt::Key_Escape);
  EXPECT_EQ(Chosen(), QStringList("F7"));
  QTest::mouseRelease(&window.View(), Qt::LeftButton, Qt::NoModifier, Middle("F3"));
  EXPECT_EQ(Chosen(), QStringList("F7"));
  Press(Qt::Key_Escape);
  EXPECT_EQ(Chosen(), QStringList());
  EXPECT_EQ(window.View().Selected()->Name(), "F7");
}

TEST_F(PictureOfAPanel, CtrlAChoosesAllAndTheMenuTheKinds) {
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(window.TheSelection().ChosenCount(), 46);
  for (QAction* const action : window.findChildren<QAction*>()) {
    if (action->text() == "Key &switches") action->trigger();
  }
  EXPECT_EQ(Chosen(), QStringList({"K1", "K2"}));
  EXPECT_EQ(window.View().Selected()->Name(), "K1");
}

TEST_F(PictureOfAPanel, ZoomByTheWheelKeepsWhatLiesUnderThePointer) {
  const QPoint at = Middle("F5");
  const QPoint before = window.View().mapTo(Scroll().viewport(), at);
  Wheel(120, at);
  Wheel(120, window.View().mapFrom(Scroll().viewport(), before));
  Wheel(120, window.View().mapFrom(Scroll().viewport(), before));
  EXPECT_EQ(window.Document()->Zoom(), 200);
  const QPoint after = window.View().mapTo(Scroll().viewport(), Middle("F5"));
  EXPECT_LE((after - before).manhattanLength(), 6) << after.x() << ' ' << after.y();
}

TEST_F(PictureOfAPanel, TheZoomThatFitsShowsAllAndIsAsLargeAsCanBe) {
  window.SetZoom(400);
  for (QAction* const action : window.findChildren<QAction*>()) {
    if (action->text() == "&Fit in window") action->trigger();
  }
  const QSize room = Scroll().viewport()->size();
  EXPECT_GE(room.width(), window.View().minimumWidth());
  EXPECT_GE(room.height(), window.View().minimumHeight());
  window.SetZoom(window.Document()->Zoom() + 1);
  EXPECT_TRUE(room.width() < window.View().minimumWidth() || room.height() < window.View().minimumHeight());
}

TEST_F(PictureOfAPanel, IsDrawnOnceBehindAZoom) {
  struct Paints : QObject {
    bool eventFilter(QObject* object, QEvent* event) override {
      if (event->type() == QEvent::Paint) ++count;
      return QObject::eventFilter(object, event);
    }
    int count = 0;
  } paints;
  QCoreApplication::processEvents();
  window.View().installEventFilter(&paints);
  window.SetZoom(250);
  for (int pass = 0; pass < 5; ++pass) QCoreApplication::processEvents();
  window.View().removeEventFilter(&paints);
  EXPECT_EQ(paints.count, 1);
}

TEST_F(PictureOfAPanel, TheFigureOfTheZoomSetsItToNormal) {
  window.SetZoom(250);
  auto* const figure = window.findChild<QToolButton*>("ZoomFigure");
  EXPECT_EQ(figure->text(), "250%");
  figure->click();
  EXPECT_EQ(figure->text(), "100%");
  EXPECT_EQ(window.Document()->Zoom(), 100);
}

TEST_F(PictureOfAPanel, SpaceAndTheMiddleButtonDrawThePictureAlong) {
  window.SetZoom(400);
  const int before = Scroll().horizontalScrollBar()->value();
  const QPoint from = window.View().mapFrom(Scroll().viewport(), QPoint(200, 200));
  QTest::mousePress(&window.View(), Qt::MiddleButton, Qt::NoModifier, from);
  Move(from - QPoint(30, 0), Qt::MiddleButton);
  QTest::mouseRelease(&window.View(), Qt::MiddleButton, Qt::NoModifier, from);
  EXPECT_EQ(Scroll().horizontalScrollBar()->value(), before + 30);
  QTest::keyPress(&window.View(), Qt::Key_Space);
  QTest::mousePress(&window.View(), Qt::LeftButton, Qt::NoModifier, from);
  Move(from + QPoint(10, 0), Qt::LeftButton);
  QTest::mouseRelease(&window.View(), Qt::LeftButton, Qt::NoModifier, from);
  QTest::keyRelease(&window.View(), Qt::Key_Space);
  EXPECT_NE(Scroll().horizontalScrollBar()->value(), before + 30);
  EXPECT_EQ(window.View().cursor().shape() == Qt::OpenHandCursor, false);
}

TEST_F(PictureOfAPanel, MenuAndListShowTheSameLayer) {
  auto* const list = window.findChild<QComboBox*>("Layer");
  ASSERT_EQ(list->count(), LayerCount + 1);
  window.ShowLayer(2);
  EXPECT_EQ(list->currentText(), "Layer 2");
  EXPECT_EQ(window.View().Layer(), 2);
}

TEST_F(PictureOfAPanel, ALabelIsShortAndOfItsLayer) {
  ctlPlexelBaseElement& key = Element("F5");
  key.PressKeyDefLayer1("[Ctrl Left+a\u2039\u203A][b\u2039\u203A]");
  key.PressKeyDefLayer2("[F2\u2039]");
  key.ReleaseKeyDefLayer2("[F2\u203A]");
  EXPECT_EQ(LabelText(key, 1), "Ctrl Left+a b");
  EXPECT_EQ(LabelText(key, 2), "F2");
  EXPECT_EQ(LabelText(key, 3), "");
  EXPECT_EQ(LabelText(key, AllLayersShown), "1: Ctrl Left+a b  2: F2");
  EXPECT_TRUE(IsDefinedOn(key, 2));
  EXPECT_FALSE(IsDefinedOn(key, 3));
  key.PressKeyDefLayer3("[]\u2039\u203A][[\u2039\u203A]");
  EXPECT_EQ(LabelText(key, 3), "] [");
}

TEST_F(PictureOfAPanel, AToolTipTellsAllLayersAndTakesNoTextForMarkUp) {
  ctlPlexelBaseElement& key = Element("F5");
  key.PressKeyDefLayer1("<b>[a]</b> & \u2039");
  key.LEDTypeLayer3(PowerLed);
  const QStringList told = TipText(key, "F5");
  EXPECT_EQ(told,
            QStringList({"F5", "Rectangular key with LED", QString::fromUtf8("Layer 1: press <b>[a]</b> & \u2039"),
                         "Layer 2: not defined", "Layer 3: LED Power", "Layer 4: not defined"}));
  QHelpEvent event(QEvent::ToolTip, Middle("F5"), window.View().mapToGlobal(Middle("F5")));
  QCoreApplication::sendEvent(&window.View(), &event);
  EXPECT_TRUE(QToolTip::text().contains("&lt;b&gt;[a]&lt;/b&gt; &amp;")) << QToolTip::text().toStdString();
  QToolTip::hideText();
}

TEST_F(PictureOfAPanel, TheTickLeavesTheMiddleOfAKeyFree) {
  surroundings.Settings().Value(SettingOf(OptionShowDefined), 1);
  window.SettingsChanged();
  Element("F5").PressKeyDefLayer1("[a]");
  window.SettingsChanged();
  Click("F1");
  const QRect box = window.View().PlaceRect(PlaceOf("F5"));
  const QImage picture = window.View().grab().toImage();
  const QRgb tick = QColor(0, 128, 0).rgb();
  int inCorner = 0, elsewhere = 0;
  for (int y = box.top(); y <= box.bottom(); ++y) {
    for (int x = box.left(); x <= box.right(); ++x) {
      if (picture.pixel(x, y) != tick) continue;
      (x > box.center().x() && y < box.center().y() - box.height() / 10 ? inCorner : elsewhere) += 1;
    }
  }
  EXPECT_GT(inCorner, 3);
  EXPECT_EQ(elsewhere, 0);
}

/// Counts what a widget is asked to paint.
class Exposures : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted |= static_cast<QPaintEvent*>(event)->rect();
    return false;
  }
  QRect painted;
};

TEST_F(PictureOfAPanel, AChangedElementIsPaintedAloneNotTheWholePicture) {
  Click("F1");
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  QTest::qWait(50);
  Exposures exposures;
  window.View().installEventFilter(&exposures);
  Element("F5").PressKeyDefLayer1("[a]");
  QTest::qWait(50);
  EXPECT_TRUE(exposures.painted.contains(window.View().PlaceRect(PlaceOf("F5"))));
  EXPECT_LT(exposures.painted.width(), 100);
  EXPECT_LT(exposures.painted.height(), 100);
}

TEST_F(PictureOfAPanel, TheDialogNamesItsElementAndLeavesItInSight) {
  QString title;
  QRect dialog;
  float left = 0, top = 0;
  ActOnNextForm([&](Hand&, Form& form) {
    const QDialog& shown = platform.Modal().Topmost()->Window();
    title = shown.windowTitle();
    dialog = shown.frameGeometry();
    left = form.Left();
    top = form.Top();
  });
  QTest::mouseDClick(&window.View(), Qt::LeftButton, Qt::NoModifier, Middle("S1"));
  EXPECT_EQ(title, QString::fromUtf8("Configure key \u2013 S1"));
  const QRect box = window.View().PlaceRect(PlaceOf("S1"));
  EXPECT_FALSE(dialog.intersects(QRect(window.View().mapToGlobal(box.topLeft()), box.size())));
  EXPECT_EQ(left, 1800) << "the form itself stays where the settings put it";
  EXPECT_EQ(top, 1500);
}

TEST_F(PictureOfAPanel, WhatReturnChangesIsAStep) {
  Click("F5");
  ActOnNextForm([](Hand& hand, Form& form) { hand.Click(*form.Find("cmdOK")); });
  Press(Qt::Key_Return);
  EXPECT_TRUE(window.Document()->Modified());
  EXPECT_TRUE(window.Document()->Steps().CanUndo());
}

TEST_F(PictureOfAPanel, TheEventsAreOffAtFirstAndTellInWordsWhatTheCallWas) {
  EXPECT_FALSE(window.Log().isVisible());
  Click("F5");
  EXPECT_TRUE(window.Log().Content().endsWith("F5: clicked")) << window.Log().Content().toStdString();
  EXPECT_TRUE(window.Log().Content().contains("F5: definition handed over"));
  EXPECT_TRUE(window.Log().Calls().contains("F5: SendKeyDefinition("));
}

TEST_F(PictureOfAPanel, TheToolBarHasPicturesAndTips) {
  auto* const tools = window.findChild<QToolBar*>("tools");
  for (const QAction* const action : tools->actions()) {
    if (action->isSeparator() || action->text().isEmpty()) continue;
    EXPECT_FALSE(action->icon().isNull()) << action->text().toStdString();
    EXPECT_FALSE(action->toolTip().contains('&')) << action->toolTip().toStdString();
  }
}

/// The largest difference of any colour of a pixel.
int Difference(const QImage& one, const QImage& other) {
  int largest = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QColor a = one.pixelColor(x, y), b = other.pixelColor(x, y);
      largest = std::max(
          {largest, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
    }
  }
  return largest;
}

TEST_F(PictureOfAPanel, IsDrawnByThePainterThatDrawsAnElementByItself) {
  constexpr int rounding = 2;
  PanelView& view = window.View();
  Element("F5").ShowXPermanent(True);
  view.Select(PlaceOf("F18"));
  const QImage picture = view.grab().toImage();
  QImage byHand(picture.size(), picture.format());
  byHand.fill(view.palette().color(QPalette::Window));
  QPainter painter(&byHand);
  painter.setRenderHint(QPainter::Antialiasing);
  const PanelDocument::Place& first = window.Document()->Places().front();
  painter.translate(view.PlaceRect(0).topLeft() - QPoint(first.part->box.left, first.part->box.top));
  for (const PanelPart& part : window.Document()->ThePanel().parts) DrawPart(painter, part);
  EXPECT_GT(Difference(picture, byHand), rounding) << "the elements show nothing";
  painter.resetTransform();
  for (const char* const id : {"F5", "F18"}) {
    painter.save();
    painter.translate(view.PlaceRect(PlaceOf(id)).topLeft());
    DrawSurface(painter, Element(id).SurfaceObjects());
    painter.restore();
  }
  EXPECT_LE(Difference(picture, byHand), rounding);
}

TEST_F(PictureOfAPanel, WhatIsDrawnAnewInPiecesIsTheWholePicture) {
  PanelView& view = window.View();
  window.SetZoom(75);
  const QImage whole = view.grab().toImage();
  QImage pieces(whole.size(), whole.format());
  pieces.setDevicePixelRatio(whole.devicePixelRatio());
  constexpr int edge = 130;
  for (int top = 0; top < view.height(); top += edge) {
    for (int left = 0; left < view.width(); left += edge) {
      const QRect inner(left, top, edge / 2, edge / 2);
      const QRegion angle = QRegion(QRect(left, top, edge, edge)) - inner;
      view.render(&pieces, angle.boundingRect().topLeft(), angle);
      view.render(&pieces, inner.topLeft(), inner);
    }
  }
  EXPECT_EQ(pieces.copy(0, 0, whole.width(), whole.height()), whole);
}

}  // namespace
}  // namespace plexel::testing

#include "qt/element_widget.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QDialog>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QSignalSpy>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <algorithm>

#include "files/panel_file.h"
#include "qt/element_face.h"
#include "qt/panel_painter.h"
#include "services/dialogs.h"
#include "widgets.h"

namespace plexel::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* Definition = "[F1\u2039\u203A]";

/// Counts the events of a kind that an object gets.
class EventCount : public QObject {
 public:
  EventCount(QObject& object, QEvent::Type type) : type_(type) { object.installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == type_ ? 1 : 0;
    return false;
  }

 private:
  QEvent::Type type_;
};

TEST(ElementWidgets, WithoutAComponentThereIsNone) {
  QWidget window;
  EXPECT_THROW(ElementWidget{&window}, std::logic_error);
  EXPECT_TRUE(window.findChildren<QWidget*>().isEmpty());
  EXPECT_THROW(QtComponent::Instance(), std::logic_error);
}

TEST_F(Widgets, ASecondComponentIsRefusedAndTheFirstGoesOn) {
  EXPECT_THROW(QtComponent(DataDirectory(), files.path().toStdString()), std::logic_error);
  EXPECT_EQ(&QtComponent::Instance(), &component);
  first.SizeX(20);
  EXPECT_EQ(first.width(), 20);
}

TEST(ElementWidgets, AWidgetMayOutliveItsComponent) {
  QTemporaryDir files;
  auto component = std::make_unique<QtComponent>(DataDirectory(), files.path().toStdString());
  ElementWidget widget;
  Module().ctlCurrentElement.reset();
  component.reset();
  EXPECT_FALSE(QtComponent::Exists());
  widget.OpenConfigurationDialog();
  widget.setFocus();
  EXPECT_FALSE(widget.grab().isNull());
}

TEST_F(Widgets, AClickGivesTheFocusAndRaisesItsEvents) {
  const QSignalSpy keys(&first, &ElementWidget::SendKeyDefinition);
  const QSignalSpy clicks(&first, &ElementWidget::MouseClicked);
  first.PressKeyDefLayer1(Definition);
  QTest::mouseClick(&first, Qt::RightButton, Qt::ShiftModifier, QPoint(4, 6));
  ASSERT_EQ(keys.count(), 1);
  EXPECT_EQ(keys[0][0].value<KeyDefinition>().strLayer1Press, Definition);
  ASSERT_EQ(clicks.count(), 1);
  EXPECT_EQ(clicks[0], QVariantList({2, 1, 60.0F, 90.0F}));
  EXPECT_TRUE(first.FocusVisible());
  EXPECT_TRUE(first.Element().SurfaceObjects().shpRect.Visible);
}

TEST_F(Widgets, OnlyTheOneWithTheKeyboardShowsTheFocus) {
  first.setFocus();
  QTest::keyClick(&first, Qt::Key_Tab);
  EXPECT_TRUE(second.hasFocus());
  EXPECT_FALSE(first.FocusVisible());
  EXPECT_FALSE(first.Element().SurfaceObjects().shpRect.Visible);
  EXPECT_TRUE(second.Element().SurfaceObjects().shpRect.Visible);
  plain.setFocus();
  EXPECT_FALSE(second.FocusVisible());
}

TEST_F(Widgets, ADisabledOneHasNoFocus) {
  first.setFocus();
  first.setEnabled(false);
  EXPECT_FALSE(first.FocusVisible());
}

TEST_F(Widgets, TheFocusStaysWhileAnotherWindowIsInFront) {
  first.setFocus();
  const QSignalSpy keys(&first, &ElementWidget::SendKeyDefinition);
  {
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_FALSE(first.hasFocus());
    EXPECT_TRUE(first.Element().SurfaceObjects().shpRect.Visible);
  }
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  EXPECT_TRUE(first.hasFocus());
  EXPECT_EQ(keys.count(), 0);
}

TEST_F(Widgets, AFocusThatMovedBehindAnotherWindowLeavesOneMark) {
  first.setFocus();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  plain.setFocus();
  other.hide();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  ASSERT_TRUE(plain.hasFocus());
  EXPECT_FALSE(first.FocusVisible());
}

TEST_F(Widgets, ReturnOpensTheDialogOverTheWindow) {
  first.setFocus();
  const QSignalSpy keys(&first, &ElementWidget::SendKeyDefinition);
  const QSignalSpy modified(&first, &ElementWidget::ProjectModified);
  QWidget* owner = nullptr;
  ActOnNextForm([&](Hand& hand, Form& form) {
    EXPECT_EQ(form.Name(), dialogs::frmConfigurationDialog);
    owner = Topmost()->Window().parentWidget();
    Click(hand, form, "cmdOK");
  });
  QTest::keyClick(&first, Qt::Key_Return);
  EXPECT_EQ(owner, &window);
  EXPECT_EQ(modified.count(), 1);
  EXPECT_EQ(keys.count(), 1);
  EXPECT_TRUE(first.FocusVisible());
}

TEST_F(Widgets, DialogsBelongToTheWindowThatTheWidgetWasMovedTo) {
  QWidget other;
  first.setParent(&other);
  QWidget* owner = nullptr;
  ActOnNextForm([&](Hand&, Form&) { owner = Topmost()->Window().parentWidget(); });
  first.OpenPropertiesDialog();
  EXPECT_EQ(owner, &other);
  first.setParent(&window);
}

/// The keys that an object gets.
class Keys : public QObject {
 public:
  explicit Keys(QObject& object) { object.installEventFilter(this); }
  std::vector<int> keys;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) keys.push_back(static_cast<QKeyEvent*>(event)->key());
    return false;
  }
};

TEST_F(Widgets, KeysThatAreNotTheElementsAreLeftToTheWindow) {
  first.setFocus();
  const Keys left(window);
  QTest::keyClick(&first, Qt::Key_Return, Qt::AltModifier);
  QTest::keyClick(&first, Qt::Key_F2);
  EXPECT_THAT(left.keys, ElementsAre(Qt::Key_Alt, Qt::Key_Return, Qt::Key_F2));
}

TEST_F(Widgets, ADoubleClickOpensADialogWhereTheHostConnectsIt) {
  QObject::connect(&first, &ElementWidget::MouseDblClicked, &first, &ElementWidget::OpenConfigurationDialog);
  const QSignalSpy clicks(&first, &ElementWidget::MouseDblClicked);
  std::string name;
  ActOnNextForm([&](Hand&, Form& form) { name = form.Name(); });
  QTest::mouseDClick(&first, Qt::LeftButton);
  EXPECT_EQ(clicks.count(), 1);
  EXPECT_EQ(name, dialogs::frmConfigurationDialog);
}

TEST_F(Widgets, CaptureIsTold) {
  const QSignalSpy capture(&first, &ElementWidget::DirectInputStatusChanged);
  ActOnNextForm([&](Hand& hand, Form& form) {
    hand.DblClick(static_cast<Grid&>(*form.Find("msgScanCodes")), 1, 1);
    Click(hand, form, "cmdCancel");
  });
  first.OpenConfigurationDialog();
  ASSERT_EQ(capture.count(), 2);
  EXPECT_EQ(capture[0][0], true);
  EXPECT_EQ(capture[1][0], false);
}

TEST_F(Widgets, TheWidgetIsAsLargeAsItsSurface) {
  EXPECT_EQ(first.size(), QSize(56, 54));
  first.ZoomFactor(200);
  EXPECT_EQ(first.size(), QSize(112, 108));
  first.Element().SizeX(20);
  QCoreApplication::processEvents();
  EXPECT_EQ(first.size(), QSize(40, 108));
}

TEST_F(Widgets, ALayoutFollowsTheSurface) {
  QWidget box;
  auto* const layout = new QHBoxLayout(&box);
  layout->addWidget(&first);
  layout->addStretch();
  box.resize(400, 300);
  box.show();
  first.SizeX(90);
  QCoreApplication::processEvents();
  EXPECT_EQ(first.size(), QSize(90, 54));
  first.setParent(&window);
}

TEST_F(Widgets, ANoticeOfTheElementPaintsAnew) {
  QCoreApplication::processEvents();
  const EventCount paints(first, QEvent::Paint);
  QCoreApplication::processEvents();
  EXPECT_EQ(paints.count, 0);
  first.Element().ShowXPermanent(True);
  QTest::qWait(50);
  EXPECT_GE(paints.count, 1);
}

QImage Drawn(const std::function<void(QPainter&)>& draw) {
  QImage image(56, 54, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  draw(painter);
  return image;
}

QImage Rendered(ElementWidget& widget) {
  return Drawn([&](QPainter& painter) { widget.render(&painter, QPoint(), QRegion(), QWidget::RenderFlags()); });
}

TEST_F(Widgets, TheWidgetDrawsWhatThePanelDraws) {
  first.ShowXPermanent(true);
  first.setFocus();
  std::vector<PanelPart> parts = UsualFace(plexel::RectLed, 56, 54);
  ASSERT_EQ(parts.size(), 2U);
  parts[0].legend = "F1";
  first.Legend("F1");
  const QImage whole = Drawn([&](QPainter& painter) {
    for (const PanelPart& part : parts) DrawPart(painter, part);
    DrawSurface(painter, first.Element().SurfaceObjects());
  });
  EXPECT_EQ(Rendered(first), whole);
  first.FaceVisible(false);
  const QImage marks = Drawn([&](QPainter& painter) { DrawSurface(painter, first.Element().SurfaceObjects()); });
  EXPECT_EQ(Rendered(first), marks);
  EXPECT_NE(marks, whole);
  EXPECT_NE(marks, Drawn([](QPainter&) {}));
}

TEST_F(Widgets, ADisabledOneIsPaleAndItsStrokesDoNotShowThroughEachOther) {
  first.FaceVisible(false);
  first.KeyDefinedColor(Qt::black);
  first.PressKeyDefLayer1(Definition);
  first.LEDTypeLayer1(ElementWidget::UserLed);
  first.ShowDefined(true);
  first.setEnabled(false);
  const QImage pale = Rendered(first);
  int darkest = 255;
  for (int y = 0; y < pale.height(); ++y) {
    for (int x = 0; x < pale.width(); ++x) darkest = std::min(darkest, qGray(pale.pixel(x, y)));
  }
  EXPECT_NEAR(darkest, 255 * 0.6, 2);
}

TEST_F(Widgets, AHostGivesAFaceOfItsOwn) {
  PanelPart part = UsualFace(plexel::Oval, 56, 54).front();
  part.fillColor = 0x0000FF;
  first.Face({part});
  EXPECT_EQ(Rendered(first), Drawn([&](QPainter& painter) { DrawPart(painter, part); }));
}

TEST_F(Widgets, EveryKindHasAFaceWithinTheWidget) {
  for (const auto kind : {plexel::Led, plexel::Oval, plexel::OvalLed, plexel::Rect, plexel::RectLed, plexel::Key}) {
    for (const int size : {1, 8, 54}) {
      const std::vector<PanelPart> parts = UsualFace(kind, size, size);
      EXPECT_EQ(parts.size(), kind == plexel::OvalLed || kind == plexel::RectLed ? 2U : 1U);
      for (const PanelPart& part : parts) {
        EXPECT_TRUE(QRect(0, 0, size, size)
                        .contains(QRect(part.box.left, part.box.top, std::max(1, part.box.width),
                                        std::max(1, part.box.height))));
      }
    }
  }
  EXPECT_TRUE(UsualFace(enumTactisBaseElementType{}, 54, 54).empty());
}

TEST_F(Widgets, TheElementsOfAWindowAreAskedForAnLedFunction) {
  second.LEDTypeLayer2(ElementWidget::AlarmLed);
  EXPECT_EQ(first.Element().CheckIfLedIsAlreadyDefined(plexel::AlarmLed, 2), True);
  EXPECT_EQ(second.Element().CheckIfLedIsAlreadyDefined(plexel::AlarmLed, 2), True);
  EXPECT_EQ(first.Element().CheckIfLedIsAlreadyDefined(plexel::AlarmLed, 1), False);
  EXPECT_EQ(first.Element().CheckIfLedIsAlreadyDefined(plexel::AlarmLed, 5), False);
}

TEST_F(Widgets, AHostMayAnswerForTheLedFunctions) {
  std::vector<int> asked;
  first.ledIsDefined = [&](ElementWidget::LedFunction function, int layer) {
    asked = {function, layer};
    return true;
  };
  EXPECT_EQ(first.Element().CheckIfLedIsAlreadyDefined(plexel::UserLed, 3), True);
  EXPECT_THAT(asked, ElementsAre(1, 3));
}

TEST_F(Widgets, AFailingHandlerIsReportedAndTheWidgetGoesOn) {
  QObject::connect(&first, &ElementWidget::MouseDblClicked, [] { throw std::runtime_error("the handler has failed"); });
  QTest::mouseDClick(&first, Qt::LeftButton);
  EXPECT_THAT(failures, ElementsAre(HasSubstr("the handler has failed")));
  QTest::keyClick(&first, Qt::Key_Tab);
  EXPECT_TRUE(second.FocusVisible());
}

TEST_F(Widgets, WhatIsNoExceptionIsReportedToo) {
  QObject::connect(&first, &ElementWidget::MouseDblClicked, [] { throw 5; });
  QTest::mouseDClick(&first, Qt::LeftButton);
  EXPECT_THAT(failures, ElementsAre(HasSubstr("no std::exception")));
  QTest::keyClick(&first, Qt::Key_Tab);
  EXPECT_TRUE(second.FocusVisible());
}

TEST_F(Widgets, AHandlerMayDeleteTheWidget) {
  auto* const widget = new ElementWidget(&window);
  widget->show();
  QObject::connect(widget, &ElementWidget::MouseDblClicked, [=] { delete widget; });
  const QPointer<ElementWidget> watched(widget);
  QTest::mouseDClick(widget, Qt::LeftButton);
  EXPECT_TRUE(watched.isNull());
  EXPECT_TRUE(failures.empty());
}

TEST_F(Widgets, AHandlerMayDeleteTheWindowUnderTheDialog) {
  const QPointer<QWidget> owner(new QWidget);
  auto* const widget = new ElementWidget(owner);
  Place(*widget, 10);
  owner->show();
  QObject::connect(widget, &ElementWidget::ProjectModified, [&owner] { delete owner.data(); });
  ActOnNextForm([&](Hand&, Form& form) {
    QTest::mouseClick(&Topmost()->ViewOf(form.Find("cmdOK"))->MouseWidget(), Qt::LeftButton);
    EXPECT_TRUE(owner.isNull());
  });
  widget->OpenConfigurationDialog();
  EXPECT_EQ(Topmost(), nullptr);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(failures.empty());
}

TEST_F(Widgets, HelpingProgramsHearALegendAndTheDefinitions) {
  first.setObjectName("F1");
  first.PressKeyDefLayer1(Definition);
  first.ReleaseKeyDefLayer3("[F2\u203A]");
  first.PressKeyDefLayer3("[F2\u2039]");
  QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(&first);
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->role(), QAccessible::Button);
  EXPECT_EQ(accessible->text(QAccessible::Name), "F1");
  EXPECT_EQ(accessible->text(QAccessible::Description), "1: [F1\u2039\u203A]\n3: [F2\u2039] / [F2\u203A]");
  first.Legend("Start");
  EXPECT_EQ(accessible->text(QAccessible::Name), "Start");
  first.setAccessibleName("the host's name");
  EXPECT_EQ(accessible->text(QAccessible::Name), "the host's name");
}

TEST_F(Widgets, PressingAnElementFromAHelpingProgramOpensItsDialogAndHoldsItUpForNothing) {
  bool asking = true;
  QTimer::singleShot(0, &context, [&] {
    EXPECT_FALSE(asking) << "the dialog holds up whoever asks";
    if (asking) Topmost()->Model().Unload();
  });
  QAccessible::queryAccessibleInterface(&first)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  asking = false;
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  std::string name;
  ActOnNextForm([&](Hand&, Form& form) { name = form.Name(); });
  EXPECT_TRUE(QTest::qWaitFor([&] { return !name.empty(); }));
  EXPECT_EQ(name, dialogs::frmConfigurationDialog);
}

TEST_F(Widgets, ADisabledElementIsNotPressedByAHelpingProgram) {
  first.setEnabled(false);
  QAccessible::queryAccessibleInterface(&first)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  bool opened = false;
  QTimer::singleShot(0, &context, [&] {
    opened = Topmost() != nullptr;
    if (opened) Topmost()->Model().Unload();
  });
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();
  EXPECT_FALSE(opened);
}

TEST_F(Widgets, TheToolTipTellsTheDefinitionsUnlessTheHostSetsOne) {
  first.Legend("Start");
  first.PressKeyDefLayer1(Definition);
  QHelpEvent ask(QEvent::ToolTip, QPoint(5, 5), first.mapToGlobal(QPoint(5, 5)));
  QCoreApplication::sendEvent(&first, &ask);
  EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), "Start\n1: [F1\u2039\u203A]");
  first.setToolTip("the host's own");
  QCoreApplication::sendEvent(&first, &ask);
  EXPECT_EQ(QToolTip::text(), "the host's own");
  QToolTip::hideText();
}

}  // namespace
}  // namespace plexel::testing

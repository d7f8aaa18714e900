#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include "editor/layers_dialog.h"
#include "editor_fixture.h"
#include "project/pasting.h"

namespace plexel::testing {
namespace {

class Clipboard : public Editor {
 protected:
  Clipboard() {
    Element("F5").PressKeyDefLayer1("[a]");
    Element("F5").LEDTypeLayer2(AlarmLed);
    Element("F5").ButtonNotes("notes");
    for (const PanelDocument::Place& place : window.Document()->Places()) {
      if (place.element->Name() != "F5") place.element->LEDTypeLayer2(LedNotEnabled);
    }
  }
  void Choose(std::initializer_list<const char*> ids) {
    std::vector<int> places;
    for (const char* const id : ids) places.push_back(PlaceOf(id));
    window.TheSelection().ChooseAndGo(places);
  }
  void Do(Text text) {
    for (QAction* const action : window.findChildren<QAction*>()) {
      if (action->text() == Say(text)) return action->trigger();
    }
    throw std::logic_error("no such action");
  }
  void AnswerNextBoxWith(const QString& text) {
    AnswerNextBox([this, text](QMessageBox& box) {
      told_ = box.informativeText();
      for (QAbstractButton* const button : box.buttons()) {
        if (button->text() == text) button->click();
      }
    });
  }
  QString told_;
};

TEST_F(Clipboard, AKeyIsCopiedOntoManyAndTakenBackInOneStep) {
  Choose({"F5"});
  Do(Text::Copy);
  EXPECT_TRUE(QGuiApplication::clipboard()->text().contains("\"PressKeyDefLayer1\""));
  Element("F5").LEDTypeLayer2(LedNotEnabled);
  Choose({"F6", "F7"});
  AnswerNextBoxWith("Without LED functions");
  Do(Text::Paste);
  EXPECT_EQ(Element("F6").PressKeyDefLayer1(), "[a]");
  EXPECT_EQ(Element("F7").ButtonNotes(), "notes");
  EXPECT_EQ(Element("F7").LEDTypeLayer2(), LedNotEnabled);
  window.Document()->Undo();
  EXPECT_EQ(Element("F6").PressKeyDefLayer1(), "");
  EXPECT_FALSE(window.Document()->Steps().CanUndo());
}

TEST_F(Clipboard, WhatDoesNotFitIsToldBeforeAndCancelChangesNothing) {
  Choose({"F5"});
  Do(Text::Copy);
  Choose({"L1"});
  AnswerNextBoxWith("Cancel");
  Do(Text::Paste);
  EXPECT_TRUE(told_.contains("L1 is an LED")) << told_.toStdString();
  EXPECT_FALSE(window.Document()->Steps().CanUndo());
}

TEST_F(Clipboard, ATextThatIsNoElementIsRefusedWithTheReason) {
  QGuiApplication::clipboard()->setText("hello");
  Choose({"F6"});
  AnswerNextBoxWith("OK");
  Do(Text::Paste);
  EXPECT_TRUE(told_.contains("clipboard")) << told_.toStdString();
  EXPECT_FALSE(window.Document()->Steps().CanUndo());
}

TEST_F(Clipboard, AnotherNumberOfElementsIsRefused) {
  Choose({"F5", "F6"});
  Do(Text::Copy);
  Choose({"F7", "F8", "F1"});
  AnswerNextBoxWith("OK");
  Do(Text::Paste);
  EXPECT_TRUE(told_.contains('2') && told_.contains('3')) << told_.toStdString();
}

TEST_F(Clipboard, TwoChosenElementsAreSwapped) {
  Choose({"F5", "F6"});
  Do(Text::Swap);
  EXPECT_EQ(Element("F6").PressKeyDefLayer1(), "[a]");
  EXPECT_EQ(Element("F5").PressKeyDefLayer1(), "");
  EXPECT_EQ(Element("F6").LEDTypeLayer2(), AlarmLed);
}

TEST_F(Clipboard, ChosenElementsAreCleared) {
  Choose({"F5", "F6"});
  Do(Text::Clear);
  EXPECT_EQ(Element("F5").PressKeyDefLayer1(), "");
  EXPECT_EQ(Element("F5").LEDTypeLayer2(), LedNotEnabled);
  window.Document()->Undo();
  EXPECT_EQ(Element("F5").PressKeyDefLayer1(), "[a]");
}

TEST_F(Clipboard, ALayerIsCopiedOntoTheOthersOfTheChosenElements) {
  Choose({"F5"});
  QTimer::singleShot(0, &context, [] {
    auto* const dialog = dynamic_cast<LayersDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->findChild<QAbstractButton*>("Onto2")->setChecked(false);
    dialog->accept();
  });
  Do(Text::CopyLayers);
  EXPECT_EQ(Element("F5").PressKeyDefLayer3(), "[a]");
  EXPECT_EQ(Element("F5").PressKeyDefLayer4(), "[a]");
  EXPECT_EQ(Element("F5").PressKeyDefLayer2(), "");
  EXPECT_EQ(Element("F5").LEDTypeLayer2(), AlarmLed);
}

TEST_F(Clipboard, AnElementThatIsDroppedOnAnotherIsCopiedAndWithShiftSwapped) {
  Element("F5").LEDTypeLayer2(LedNotEnabled);
  QMimeData carried;
  const std::array place = {static_cast<std::size_t>(PlaceOf("F5"))};
  carried.setText(QString::fromStdString(CopiedText(*window.Document(), place)));
  const auto drop = [&](const std::string& onto) {
    QDropEvent event(Middle(onto), Qt::CopyAction, &carried, Qt::LeftButton, Qt::NoModifier);
    static_cast<QObject&>(window.View()).event(&event);
    EXPECT_TRUE(event.isAccepted());
    QCoreApplication::processEvents();
  };
  drop("F6");
  EXPECT_EQ(Element("F6").PressKeyDefLayer1(), "[a]");
  EXPECT_EQ(Element("F5").PressKeyDefLayer1(), "[a]");
  window.View().onDrop(PlaceOf("F5"), PlaceOf("F7"), carried.text(), true);
  EXPECT_EQ(Element("F7").PressKeyDefLayer1(), "[a]");
  EXPECT_EQ(Element("F5").PressKeyDefLayer1(), "");
}

TEST_F(Clipboard, AnElementIsDrawnAwayOnlyBehindAShortWay) {
  int drawn = 0;
  window.View().onDrag = [&](int place) {
    ++drawn;
    EXPECT_EQ(place, PlaceOf("F5"));
  };
  const QPoint middle = Middle("F5");
  const auto move = [&](const QPoint& to) {
    QMouseEvent event(QEvent::MouseMove, to, window.View().mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&window.View(), &event);
  };
  QTest::mousePress(&window.View(), Qt::LeftButton, Qt::NoModifier, middle);
  move(middle + QPoint(1, 0));
  EXPECT_EQ(drawn, 0);
  move(middle + QPoint(QApplication::startDragDistance(), 0));
  EXPECT_EQ(drawn, 1);
  QTest::mouseRelease(&window.View(), Qt::LeftButton, Qt::NoModifier, middle);
}

}  // namespace
}  // namespace plexel::testing

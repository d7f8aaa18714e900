#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QMenu>
#include <QTabBar>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

#include "qt/grid_widget.h"
#include "stage.h"

namespace plexel::testing {
namespace {

using QtLists = Stage;

GridWidget& GridOf(const FormView& view, const Grid& grid) {
  return dynamic_cast<GridWidget&>(view.ViewOf(&grid)->Outer());
}

QMenu* MenuOf(const FormView& view) { return view.Window().findChild<QMenu*>(); }

/// Moves the pointer there, as a hand does ahead of a press. A popup menu takes the press of a pointer that has not
/// moved for a part of the click that opened it.
void PointAt(const QWidget& widget, QPoint place) {
  QCursor::setPos(widget.mapToGlobal(place));
  QCoreApplication::processEvents();
}

TEST_F(QtLists, AComboBoxShowsATextThatIsNoEntry) {
  WhileShown([&](FormView& view) {
    auto& box = WidgetOf<QComboBox>(view, form.combo);
    EXPECT_EQ(box.currentIndex(), -1);
    const QImage withText = box.grab().toImage();
    form.combo.Text("");
    platform.Modal().SyncAll();
    EXPECT_NE(withText, box.grab().toImage());
  });
}

TEST_F(QtLists, AnEntryPickedFromTheListIsHandedOver) {
  WhileShown([&](FormView& view) {
    auto& box = WidgetOf<QComboBox>(view, form.combo);
    emit box.activated(1);
    EXPECT_EQ(form.combo.Text(), "second");
    EXPECT_EQ(box.currentIndex(), 1);
    EXPECT_EQ(form.notes, std::vector<std::string>{"combo second"});
  });
}

TEST_F(QtLists, EntriesThatTheProgramChangesAreShown) {
  WhileShown([&](FormView& view) {
    form.combo.Clear();
    form.combo.AddItem("other");
    platform.Modal().SyncAll();
    EXPECT_EQ(WidgetOf<QComboBox>(view, form.combo).count(), 1);
    EXPECT_TRUE(form.notes.empty());
  });
}

TEST_F(QtLists, EntriesThatChangeAfterTheyWereShownAreShown) {
  WhileShown([&](FormView& view) {
    auto& box = WidgetOf<QComboBox>(view, form.combo);
    form.combo.Clear();
    for (const char* const entry : {"a", "b", "c"}) form.combo.AddItem(entry);
    form.combo.ListIndex(2);
    platform.Modal().SyncAll();
    EXPECT_EQ(box.itemText(1), "b");
    EXPECT_EQ(box.currentIndex(), 2);
    form.combo.Clear();
    EXPECT_EQ(box.itemText(1), "") << "an entry that has gone, ahead of the next look at the model";
    form.combo.AddItem("d");
    platform.Modal().SyncAll();
    EXPECT_EQ(box.count(), 1);
    EXPECT_EQ(box.itemText(0), "d");
    EXPECT_EQ(box.currentIndex(), -1);
  });
}

TEST_F(QtLists, AListOfManyEntriesUnfoldsWhole) {
  constexpr int many = 50'000;
  WhileShown([&](FormView& view) {
    auto& box = WidgetOf<QComboBox>(view, form.combo);
    form.combo.Clear();
    for (int number = 0; number < many; ++number) form.combo.AddItem("Entry " + std::to_string(number));
    form.combo.ListIndex(many - 1);
    form.combo.SetFocus();
    platform.Modal().SyncAll();
    Press(view, Qt::Key_F4);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(box.view()->model()->rowCount(), many);
    EXPECT_EQ(box.view()->currentIndex().row(), many - 1);
    EXPECT_TRUE(box.view()->viewport()->rect().intersects(box.view()->visualRect(box.view()->currentIndex())));
    box.hidePopup();
  });
}

TEST_F(QtLists, OfAnEndlessEntryItsStartIsShown) {
  WhileShown([&](FormView& view) {
    auto& box = WidgetOf<QComboBox>(view, form.combo);
    form.combo.Clear();
    form.combo.AddItem("start" + std::string(5'000'000, 'x'));
    form.combo.ListIndex(0);
    platform.Modal().SyncAll();
    EXPECT_TRUE(box.itemText(0).startsWith("startxxx"));
    EXPECT_LE(box.itemText(0).size(), 1024);
    EXPECT_EQ(form.combo.Text().size(), 5'000'005U);
  });
}

TEST_F(QtLists, F4UnfoldsTheList) {
  WhileShown([&](FormView& view) {
    form.combo.SetFocus();
    platform.Modal().SyncAll();
    Press(view, Qt::Key_F4);
    auto& box = WidgetOf<QComboBox>(view, form.combo);
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
    box.hidePopup();
  });
}

TEST_F(QtLists, AListWhoseHandlerDropsF4StaysFolded) {
  form.combo.OnKeyDown = [](std::int16_t& keyCode, std::int16_t) { keyCode = 0; };
  WhileShown([&](FormView& view) {
    form.combo.SetFocus();
    platform.Modal().SyncAll();
    Press(view, Qt::Key_F4);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  });
}

TEST_F(QtLists, AClickOnATabBringsItsPageToTheFront) {
  WhileShown([&](FormView& view) {
    auto& bar = WidgetOf<QTabBar>(view, form.strip);
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(1).center());
    EXPECT_EQ(form.strip.Tab(), 1);
    EXPECT_TRUE(view.ViewOf(&form.note)->Outer().isVisible());
    EXPECT_EQ(form.notes, std::vector<std::string>{"tab 1"});
  });
}

TEST_F(QtLists, APageThatIsOffStaysBehind) {
  WhileShown([&](FormView& view) {
    auto& bar = WidgetOf<QTabBar>(view, form.strip);
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(2).center());
    EXPECT_EQ(form.strip.Tab(), 0);
    EXPECT_TRUE(form.notes.empty());
  });
}

TEST_F(QtLists, AClickOnACellMakesItCurrent) {
  WhileShown([&](FormView& view) {
    Click(view, form.grid, Qt::LeftButton, CellPlace(2, 1));
    EXPECT_EQ(form.notes, std::vector<std::string>{"cell 2,1"});
    EXPECT_EQ(form.Focus(), &form.grid);
  });
}

TEST_F(QtLists, ADoubleClickOnACellRaisesItsEvent) {
  WhileShown([&](FormView& view) {
    QTest::mouseDClick(&MouseWidgetOf(view, form.grid), Qt::LeftButton, Qt::NoModifier, CellPlace(1, 2));
    EXPECT_EQ(form.notes.back(), "double cell");
    EXPECT_EQ(form.grid.Col(), 2);
  });
}

TEST_F(QtLists, TheArrowKeysMoveTheCurrentCell) {
  WhileShown([&](FormView& view) {
    form.grid.SetFocus();
    platform.Modal().SyncAll();
    Press(view, Qt::Key_Down);
    Press(view, Qt::Key_Right);
    EXPECT_EQ(form.grid.Row(), 2);
    EXPECT_EQ(form.grid.Col(), 2);
  });
}

TEST_F(QtLists, ACellIsPaintedInItsOwnColour) {
  WhileShown([&](FormView& view) {
    form.grid.Current(2, 2);
    form.grid.CellBackColor(0x00FFFF);
    form.grid.Current(1, 1);
    platform.Modal().SyncAll();
    const QImage image = MouseWidgetOf(view, form.grid).grab().toImage();
    EXPECT_EQ(image.pixelColor(CellPlace(2, 2)), QColor(255, 255, 0));
    EXPECT_EQ(image.pixelColor(CellPlace(2, 1)), QColor(255, 255, 255));
  });
}

TEST_F(QtLists, WhatChangesWhileRedrawIsOffIsShownWhenItIsOnAgain) {
  WhileShown([&](FormView& view) {
    const QImage before = MouseWidgetOf(view, form.grid).grab().toImage();
    form.grid.Redraw(false);
    form.grid.CellBackColor(0x0000FF);
    platform.Modal().SyncAll();
    EXPECT_EQ(MouseWidgetOf(view, form.grid).grab().toImage(), before);
    form.grid.Redraw(true);
    platform.Modal().SyncAll();
    EXPECT_NE(MouseWidgetOf(view, form.grid).grab().toImage(), before);
  });
}

TEST_F(QtLists, TheEdgeOfAColumnIsDraggedToANewWidth) {
  WhileShown([&](FormView& view) {
    QWidget& mouse = MouseWidgetOf(view, form.grid);
    QTest::mousePress(&mouse, Qt::LeftButton, Qt::NoModifier, QPoint(80, 8));
    QTest::mouseMove(&mouse, QPoint(100, 8));
    QTest::mouseRelease(&mouse, Qt::LeftButton, Qt::NoModifier, QPoint(100, 8));
    EXPECT_EQ(form.grid.ColWidth(0), 1500);
    EXPECT_EQ(form.grid.ColWidth(1), 1200);
    EXPECT_EQ(GridOf(view, form.grid).CellRect(0, 0).width(), 100);
  });
}

TEST_F(QtLists, AColumnIsNotDraggedSoWideThatTheNextOneCannotBeReached) {
  for (const int dragged : {0, 1}) {
    for (int col = 0; col < 3; ++col) form.grid.ColWidth(col, 1200);
    WhileShown([&](FormView& view) {
      QWidget& mouse = MouseWidgetOf(view, form.grid);
      const QPoint edge(80 * (dragged + 1), 8);
      QTest::mousePress(&mouse, Qt::LeftButton, Qt::NoModifier, edge);
      QTest::mouseMove(&mouse, QPoint(2000, 8));
      QTest::mouseRelease(&mouse, Qt::LeftButton, Qt::NoModifier, QPoint(2000, 8));
      const QRect next = GridOf(view, form.grid).CellRect(0, dragged + 1);
      EXPECT_LT(next.left() + 10, mouse.width());
      EXPECT_EQ(GridOf(view, form.grid).CellRect(0, dragged).width(),
                ToPixels(static_cast<float>(form.grid.ColWidth(dragged))));
    });
  }
}

TEST_F(QtLists, AWidthThatHidesAColumnIsDrawnWithinReachAndKept) {
  for (const int hiding : {0, 1, 2}) {
    for (int col = 0; col < 3; ++col) form.grid.ColWidth(col, col == hiding ? 60000 : 1200);
    WhileShown([&](FormView& view) {
      QWidget& mouse = MouseWidgetOf(view, form.grid);
      const GridWidget& grid = GridOf(view, form.grid);
      form.grid.SetFocus();
      for (int col = 1; col < 3; ++col) {
        form.grid.Current(1, 1);
        for (int step = 1; step < col; ++step) Press(view, Qt::Key_Right);
        platform.Modal().SyncAll();
        EXPECT_GE(grid.CellRect(1, col).intersected(mouse.rect()).width(), 16) << hiding << ' ' << col;
      }
      Press(view, Qt::Key_Left);
      const QPoint edge(grid.CellRect(0, hiding).right() + 1, 8);
      EXPECT_TRUE(hiding == 2 || mouse.rect().contains(edge));
      EXPECT_EQ(form.grid.ColWidth(hiding), 60000);
      if (hiding == 2) return;
      QTest::mousePress(&mouse, Qt::LeftButton, Qt::NoModifier, edge);
      QTest::mouseMove(&mouse, edge - QPoint(20, 0));
      QTest::mouseRelease(&mouse, Qt::LeftButton, Qt::NoModifier, edge - QPoint(20, 0));
      EXPECT_EQ(ToPixels(static_cast<float>(form.grid.ColWidth(hiding))), grid.CellRect(0, hiding).width());
      EXPECT_LT(form.grid.ColWidth(hiding), 4500);
    });
  }
}

TEST_F(QtLists, AColumnWithoutAWidthIsDrawnWithinReach) {
  form.grid.ColWidth(1, 0);
  WhileShown([&](FormView& view) {
    EXPECT_EQ(GridOf(view, form.grid).CellRect(1, 1).width(), 8);
    EXPECT_EQ(form.grid.ColWidth(1), 0);
  });
}

TEST_F(QtLists, TheWheelScrollsSidewaysWhereAllRowsAreInView) {
  for (int col = 0; col < 3; ++col) form.grid.ColWidth(col, 2200);
  WhileShown([&](FormView& view) {
    QWidget& mouse = MouseWidgetOf(view, form.grid);
    const auto turn = [&](int angle) {
      QWheelEvent event(QPointF(200, 40), mouse.mapToGlobal(QPointF(200, 40)), QPoint(), QPoint(0, angle), Qt::NoButton,
                        Qt::NoModifier, Qt::NoScrollPhase, false);
      QApplication::sendEvent(&mouse, &event);
    };
    turn(-120);
    EXPECT_EQ(form.grid.LeftCol(), 2);
    turn(120);
    EXPECT_EQ(form.grid.LeftCol(), 1);
  });
}

constexpr const char* longText = "[first][second][third][fourth][fifth][sixth][seventh][eighth][ninth][tenth][last]";

TEST_F(QtLists, TheCurrentCellShowsTheEndOfALongTextWhenItIsToldTo) {
  WhileShown([&](FormView& view) {
    const auto pictureOf = [&](const std::string& text, bool showsEnd) {
      form.grid.Text(text);
      form.grid.ShowsEnd(showsEnd);
      platform.Modal().SyncAll();
      return MouseWidgetOf(view, form.grid).grab().toImage();
    };
    const std::string text = longText;
    EXPECT_EQ(pictureOf(text, false), pictureOf(text + "more", false));
    EXPECT_NE(pictureOf(text, true), pictureOf(text + "more", true));
    EXPECT_EQ(pictureOf(text + "more", true), pictureOf("other" + text + "more", true));
    EXPECT_EQ(pictureOf("short", false), pictureOf("short", true));
  });
}

TEST_F(QtLists, ATextThatIsCutStandsWholeInTheToolTip) {
  form.grid.ToolTipText("what the grid is for");
  WhileShown([&](FormView& view) {
    QWidget& mouse = MouseWidgetOf(view, form.grid);
    const auto toolTipAt = [&](int row, int col) {
      QHelpEvent event(QEvent::ToolTip, CellPlace(row, col), mouse.mapToGlobal(CellPlace(row, col)));
      QApplication::sendEvent(&mouse, &event);
      QTextDocument shown;
      shown.setHtml(QToolTip::text());
      return shown.toPlainText().remove('\n').replace(QChar::Nbsp, ' ').toStdString();
    };
    form.grid.Text(longText);
    form.grid.Current(1, 2);
    form.grid.Text("short");
    platform.Modal().SyncAll();
    EXPECT_EQ(toolTipAt(1, 1), longText);
    EXPECT_EQ(toolTipAt(1, 2), "what the grid is for");
    EXPECT_EQ(toolTipAt(2, 1), "what the grid is for");
    QToolTip::hideText();
  });
}

TEST_F(QtLists, ColumnsOfFixedWidthAreNotDragged) {
  form.grid.UserResizing(false);
  WhileShown([&](FormView& view) {
    QWidget& mouse = MouseWidgetOf(view, form.grid);
    QTest::mousePress(&mouse, Qt::LeftButton, Qt::NoModifier, QPoint(80, 8));
    QTest::mouseMove(&mouse, QPoint(100, 8));
    QTest::mouseRelease(&mouse, Qt::LeftButton, Qt::NoModifier, QPoint(100, 8));
    EXPECT_EQ(form.grid.ColWidth(0), 1200);
  });
}

TEST_F(QtLists, TheRightButtonOpensThePopupMenuOfTheForm) {
  WhileShown([&](FormView& view) {
    Click(view, form.grid, Qt::RightButton, CellPlace(1, 1));
    QMenu* const menu = MenuOf(view);
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 3);
    EXPECT_EQ(menu->actions()[0]->text(), "Copy");
    EXPECT_TRUE(menu->actions()[1]->isSeparator());
    EXPECT_FALSE(menu->actions()[2]->isEnabled());
    menu->close();
  });
}

TEST_F(QtLists, AnEntryOfThePopupMenuIsHandedOver) {
  WhileShown([&](FormView& view) {
    PointAt(MouseWidgetOf(view, form.grid), CellPlace(1, 1));
    Click(view, form.grid, Qt::RightButton, CellPlace(1, 1));
    QMenu* const menu = MenuOf(view);
    ASSERT_NE(menu, nullptr);
    const QPoint entry = menu->actionGeometry(menu->actions()[0]).center();
    PointAt(*menu, entry);
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, entry);
    QCoreApplication::processEvents();
    EXPECT_EQ(form.notes, std::vector<std::string>{"copy"});
    EXPECT_EQ(form.OpenPopup(), nullptr);
  });
}

TEST_F(QtLists, APopupMenuThatIsDismissedIsClosedInTheModelToo) {
  WhileShown([&](FormView& view) {
    Click(view, form.grid, Qt::RightButton, CellPlace(1, 1));
    ASSERT_EQ(form.OpenPopup(), &form.menu);
    QTest::keyClick(MenuOf(view), Qt::Key_Escape);
    QCoreApplication::processEvents();
    EXPECT_EQ(form.OpenPopup(), nullptr);
    EXPECT_TRUE(form.notes.empty());
    EXPECT_TRUE(form.IsShown());
  });
}

TEST_F(QtLists, TheWheelScrollsAGridThatDoesNotFit) {
  Grid tall(form, "tall", 40, 2, 1, 0);
  tall.Place(3000, 1600, 2400, 900);
  WhileShown([&](FormView& view) {
    QWidget& mouse = MouseWidgetOf(view, tall);
    QWheelEvent down(QPointF(5, 5), mouse.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&mouse, &down);
    EXPECT_EQ(tall.TopRow(), 4);
    EXPECT_TRUE(GridOf(view, tall).CellRect(1, 0).isEmpty());
    EXPECT_FALSE(GridOf(view, tall).CellRect(0, 0).isEmpty());
  });
}

}  // namespace
}  // namespace plexel::testing

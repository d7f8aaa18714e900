#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>

#include "qt/pictures.h"
#include "stage.h"

namespace plexel::testing {
namespace {

using FormViewTest = Stage;

TEST_F(FormViewTest, EveryControlThatShowsSomethingStandsAtItsPlace) {
  WhileShown([&](FormView& view) {
    for (const Control* control : form.Controls()) {
      if (control->Kind() == ControlKind::Menu) {
        EXPECT_EQ(view.ViewOf(control), nullptr) << control->FullName();
        continue;
      }
      ASSERT_NE(view.ViewOf(control), nullptr) << control->FullName();
      EXPECT_EQ(view.ViewOf(control)->Outer().geometry(), PixelRect(*control)) << control->FullName();
    }
  });
}

TEST_F(FormViewTest, OnlyThePageInFrontIsVisible) {
  WhileShown([&](FormView& view) {
    EXPECT_TRUE(view.ViewOf(&form.grid)->Outer().isVisible());
    EXPECT_FALSE(view.ViewOf(&form.note)->Outer().isVisible());
  });
}

TEST_F(FormViewTest, TheWindowHasTheClientSizeAndThePlaceOfTheForm) {
  WhileShown([&](FormView& view) {
    EXPECT_EQ(view.Window().size(), QSize(400, 400));
    EXPECT_EQ(view.Window().pos(), QPoint(100, 50));
    EXPECT_EQ(view.Window().windowTitle(), "Sample");
  });
}

TEST_F(FormViewTest, AnAmpersandInACaptionIsASign) {
  form.ok.Caption("Save & go");
  WhileShown([&](FormView& view) {
    EXPECT_EQ(WidgetOf<QLabel>(view, form.title).text(), "Title & more");
    EXPECT_EQ(WidgetOf<QPushButton>(view, form.ok).text(), "Save && go");
  });
}

TEST_F(FormViewTest, WhatTheProgramChangesIsShownAfterTheNextSync) {
  WhileShown([&](FormView& view) {
    form.ok.Enabled(false);
    form.link.Visible(false);
    form.status.SimpleText("busy");
    form.Caption("Other");
    platform.Modal().SyncAll();
    EXPECT_FALSE(view.ViewOf(&form.ok)->Outer().isEnabled());
    EXPECT_FALSE(view.ViewOf(&form.link)->Outer().isVisible());
    EXPECT_EQ(WidgetOf<QLabel>(view, form.status).text(), "busy");
    EXPECT_EQ(view.Window().windowTitle(), "Other");
  });
}

TEST_F(FormViewTest, AClickOnAButtonIsHandedOver) {
  WhileShown([&](FormView& view) {
    Click(view, form.ok);
    EXPECT_EQ(form.notes, std::vector<std::string>{"ok"});
    EXPECT_EQ(form.Focus(), &form.ok);
    EXPECT_TRUE(view.ViewOf(&form.ok)->Outer().hasFocus());
  });
}

TEST_F(FormViewTest, AClickOnADisabledButtonDoesNothing) {
  form.ok.Enabled(false);
  WhileShown([&](FormView& view) {
    Click(view, form.ok);
    EXPECT_TRUE(form.notes.empty());
  });
}

TEST_F(FormViewTest, AClickOnALinkIsHandedOver) {
  WhileShown([&](FormView& view) {
    Click(view, form.link);
    EXPECT_EQ(form.notes, std::vector<std::string>{"link"});
  });
}

TEST_F(FormViewTest, AnOptionButtonShowsTheValueOfTheModel) {
  WhileShown([&](FormView& view) {
    Click(view, *form.options[1], Qt::LeftButton, QPoint(8, 10));
    EXPECT_TRUE(form.options[1]->Value());
    EXPECT_TRUE(WidgetOf<QRadioButton>(view, *form.options[1]).isChecked());
    EXPECT_FALSE(WidgetOf<QRadioButton>(view, *form.options[0]).isChecked());
    Click(view, *form.options[1], Qt::LeftButton, QPoint(8, 10));
    EXPECT_TRUE(WidgetOf<QRadioButton>(view, *form.options[1]).isChecked());
  });
}

TEST_F(FormViewTest, APictureIsDrawn) {
  WhileShown([&](FormView& view) {
    const QImage shown = view.ViewOf(&form.picture)->Outer().grab().toImage();
    form.picture.Picture("");
    platform.Modal().SyncAll();
    EXPECT_NE(shown, view.ViewOf(&form.picture)->Outer().grab().toImage());
  });
}

TEST_F(FormViewTest, APictureHasTheResolutionOfTheScreen) {
  EXPECT_EQ(PicturePixmap("led", QSize(32, 32), 2).size(), QSize(64, 64));
}

TEST_F(FormViewTest, AShapeLiesBehindTheOtherControlsInItsColour) {
  form.shape.BackColor(0x00FF00);
  WhileShown([&](FormView& view) {
    const QImage image = view.Window().grab().toImage();
    EXPECT_EQ(image.pixelColor(5, 35), QColor(0, 255, 0));
    EXPECT_EQ(view.Window().childAt(15, 8), &view.ViewOf(&form.title)->Outer());
  });
}

TEST_F(FormViewTest, TheCloseBoxUnloadsWithItsReason) {
  WhileShown([&](FormView& view) {
    view.Window().close();
    EXPECT_EQ(form.notes, std::vector<std::string>{"close box"});
    EXPECT_FALSE(form.IsShown());
    EXPECT_FALSE(view.Window().isVisible());
  });
}

TEST_F(FormViewTest, MovingTheWindowMovesTheForm) {
  WhileShown([&](FormView& view) {
    view.Window().move(200, 120);
    QCoreApplication::processEvents();
    EXPECT_EQ(form.Left(), 3000);
    EXPECT_EQ(form.Top(), 1800);
  });
}

TEST_F(FormViewTest, AFormWithoutAPlaceOpensOverTheMiddleOfItsOwner) {
  Form inner("inner");
  inner.Width(3000);
  inner.Height(1500);
  QRect place;
  form.ok.OnClick = [&] {
    QTimer::singleShot(0, &context, [&] {
      place = QRect(platform.Modal().Topmost()->Window().pos(), QSize(200, 100));
      inner.Unload();
    });
    inner.ShowModal(&form);
  };
  WhileShown([&](FormView& view) {
    Click(view, form.ok);
    const QPoint apart = place.center() - view.Window().frameGeometry().center();
    EXPECT_LE(apart.manhattanLength(), 2);
    EXPECT_EQ(inner.Left(), ToTwips(place.left()));
  });
}

TEST_F(FormViewTest, AFormOnNoScreenIsBroughtBack) {
  form.Left(-100000);
  WhileShown([&](FormView& view) {
    EXPECT_TRUE(view.Window().screen()->availableGeometry().contains(view.Window().pos()));
    EXPECT_EQ(ToPixels(form.Left()), view.Window().pos().x());
  });
}

TEST_F(FormViewTest, TheCornerOfTheScreenIsAPlaceLikeAnyOther) {
  form.Left(0);
  form.Top(0);
  WhileShown([&](FormView& view) { EXPECT_EQ(view.Window().pos(), QPoint(0, 0)); });
}

TEST_F(FormViewTest, APlaceBetweenPixelsIsKeptWhenTheWindowDoesNotMove) {
  form.Left(1507.5F);
  WhileShown([&](FormView&) {
    QCoreApplication::processEvents();
    EXPECT_EQ(form.Left(), 1507.5F);
  });
}

TEST_F(FormViewTest, AFailureOfAHandlerIsReportedAndTheDialogStaysUsable) {
  form.ok.OnClick = [] { throw Failure(FailureKind::Overflow, "too much"); };
  WhileShown([&](FormView& view) {
    Click(view, form.ok);
    EXPECT_EQ(failures, std::vector<std::string>{"too much"});
    Click(view, form.link);
    EXPECT_EQ(form.notes, std::vector<std::string>{"link"});
  });
}

TEST_F(FormViewTest, AnythingElseEndsTheDialogAndReachesWhoeverShowedIt) {
  form.ok.OnClick = [] { throw 7; };
  QTimer::singleShot(0, &context, [&] { Click(*platform.Modal().Topmost(), form.ok); });
  EXPECT_THROW(form.ShowModal(nullptr), int);
  EXPECT_TRUE(failures.empty());
  EXPECT_FALSE(form.IsShown());
  EXPECT_EQ(platform.Modal().Topmost(), nullptr);
  form.ok.OnClick = nullptr;
  WhileShown([&](FormView& view) {
    Click(view, form.link);
    EXPECT_EQ(form.notes, std::vector<std::string>{"link"});
  });
}

TEST_F(FormViewTest, WhatIsThrownInANestedDialogEndsBoth) {
  SampleForm inner;
  inner.ok.OnClick = [] { throw std::runtime_error("inner"); };
  form.ok.OnClick = [&] {
    QTimer::singleShot(0, &context, [&] { Click(*platform.Modal().Topmost(), inner.ok); });
    inner.ShowModal(&form);
  };
  QTimer::singleShot(0, &context, [&] { Click(*platform.Modal().Topmost(), form.ok); });
  EXPECT_THROW(form.ShowModal(nullptr), std::runtime_error);
  EXPECT_FALSE(inner.IsShown());
  EXPECT_FALSE(form.IsShown());
  EXPECT_EQ(platform.Modal().Topmost(), nullptr);
}

TEST_F(FormViewTest, WhatAKeyboardHookThrowsEndsTheDialogToo) {
  static constexpr HookProcedure throws = [](std::int32_t, std::int32_t, std::intptr_t) -> std::int32_t { throw 7; };
  const std::int32_t hook = platform.Hooks().Install(HookKind::Keyboard, throws);
  QTimer::singleShot(0, &context, [&] { Press(*platform.Modal().Topmost(), Qt::Key_A); });
  EXPECT_THROW(form.ShowModal(nullptr), int);
  platform.Hooks().Remove(hook);
}

TEST_F(FormViewTest, AFormOpensOverItsOwner) {
  SampleForm inner;
  QWidget* parent = nullptr;
  form.ok.OnClick = [&] {
    QTimer::singleShot(0, &context, [&] {
      parent = platform.Modal().Topmost()->Window().parentWidget();
      inner.Unload();
    });
    inner.ShowModal(&form);
  };
  WhileShown([&](FormView& view) {
    Click(view, form.ok);
    EXPECT_EQ(parent, &view.Window());
    EXPECT_EQ(platform.Modal().Topmost(), &view);
  });
}

TEST_F(FormViewTest, AWindowThatGoesUnderItsDialogsEndsThem) {
  struct HostWindow : Window {
    std::string WindowName() const override { return "HostForm"; }
  } host;
  auto widget = std::make_unique<QWidget>();
  widget->show();
  platform.Register(host, *widget);
  SampleForm inner;
  form.ok.OnClick = [&] {
    QTimer::singleShot(0, &context, [&] { widget.reset(); });
    inner.ShowModal(&form);
  };
  QTimer::singleShot(0, &context, [&] { Click(*platform.Modal().Topmost(), form.ok); });
  form.ShowModal(&host);
  EXPECT_FALSE(inner.IsShown());
  EXPECT_FALSE(form.IsShown());
  EXPECT_EQ(platform.Modal().Topmost(), nullptr);
}

TEST_F(FormViewTest, AWindowThatGoesTakesTheQuestionOverItsDialogAlong) {
  struct HostWindow : Window {
    std::string WindowName() const override { return "HostForm"; }
  } host;
  auto widget = std::make_unique<QWidget>();
  widget->show();
  platform.Register(host, *widget);
  MessageAnswer answer = MessageAnswer::None;
  form.ok.OnClick = [&] {
    QTimer::singleShot(0, &context, [&] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      widget.reset();
      EXPECT_FALSE(box->isVisible());
      box->reject();
    });
    answer = platform.Messages().Show("Prompt", MessageBoxes::StyleYesNoCancel, "Title");
  };
  QTimer::singleShot(0, &context, [&] {
    const FormView& view = *platform.Modal().Topmost();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view.Window()));
    Click(view, form.ok);
  });
  form.ShowModal(&host);
  EXPECT_EQ(answer, MessageAnswer::Cancel);
  EXPECT_FALSE(form.IsShown());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FormViewTest, NoFormIsOpenAfterTheLastHasClosed) {
  WhileShown([](FormView&) {});
  EXPECT_EQ(platform.Modal().Topmost(), nullptr);
  EXPECT_EQ(form.notes, std::vector<std::string>{"close"});
}

}  // namespace
}  // namespace plexel::testing

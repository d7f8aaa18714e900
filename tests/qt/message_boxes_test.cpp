#include <QAbstractButton>
#include <QMessageBox>

#include "stage.h"

namespace plexel::testing {
namespace {

class QtMessages : public Stage {
 protected:
  MessageAnswer Answer(std::int32_t style, const std::function<void(QMessageBox&)>& act) {
    QTimer::singleShot(0, &context, [&] {
      auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      act(*box);
    });
    return platform.Messages().Show("Prompt\r\nline", style, "Title");
  }
};

constexpr std::int32_t Question = MessageBoxes::StyleYesNoCancel + MessageBoxes::StyleCritical;

TEST_F(QtMessages, TheQuestionHasThreeButtonsAndTheCriticalIcon) {
  Answer(Question, [](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Title");
    EXPECT_EQ(box.text(), "Prompt\r\nline");
    EXPECT_EQ(box.icon(), QMessageBox::Critical);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box.button(QMessageBox::Cancel)->click();
  });
}

TEST_F(QtMessages, EachButtonGivesItsAnswer) {
  const auto press = [this](QMessageBox::StandardButton button) {
    return Answer(Question, [button](QMessageBox& box) { box.button(button)->click(); });
  };
  EXPECT_EQ(press(QMessageBox::Yes), MessageAnswer::Yes);
  EXPECT_EQ(press(QMessageBox::No), MessageAnswer::No);
  EXPECT_EQ(press(QMessageBox::Cancel), MessageAnswer::Cancel);
}

TEST_F(QtMessages, EscapeStandsForCancelOfTheQuestion) {
  EXPECT_EQ(Answer(Question, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }), MessageAnswer::Cancel);
}

TEST_F(QtMessages, ABoxWithOneButtonAnswersOk) {
  EXPECT_EQ(Answer(MessageBoxes::StyleOkOnly + MessageBoxes::StyleCritical,
                   [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }),
            MessageAnswer::OK);
}

TEST_F(QtMessages, AWindowThatGoesUnderAQuestionCancelsIt) {
  auto owner = std::make_unique<QWidget>();
  owner->show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(owner.get()));
  EXPECT_EQ(Answer(Question,
                   [&](QMessageBox& box) {
                     EXPECT_EQ(box.parentWidget(), owner.get());
                     owner.reset();
                   }),
            MessageAnswer::Cancel);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(QtMessages, TheButtonsCarryTheTextsOfTheProgram) {
  platform.Messages().buttonText = [](MessageAnswer answer) {
    return answer == MessageAnswer::Yes ? QString("Ja") : QString("-");
  };
  Answer(Question, [](QMessageBox& box) {
    EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "Ja");
    box.button(QMessageBox::No)->click();
  });
}

}  // namespace
}  // namespace plexel::testing

#include "wizard/frmPropertiesButton.h"
#include "wizard/wizard_session.h"

namespace plexel {

namespace {

using Names = std::vector<std::string>;

/// Picture, title, and the rows that are shown, as "row description number".
struct Content {
  std::string caption, picture, title;
  Names rows;
};

Content Read(WizardSession& session) {
  Content content;
  session.Then([&] {
    content.caption = session.Top().Caption();
    content.picture = session.Get<PictureBox>("imgProperty").Picture();
    content.title = session.Get<Label>("labTitel").Caption();
    for (int row = 0; row < 8; ++row) {
      const std::string index = "(" + std::to_string(row) + ")";
      const auto& description = session.Get<Label>("labNumberDescription" + index);
      const auto& number = session.Get<Label>("labHardwareNumber" + index);
      EXPECT_EQ(description.Visible(), number.Visible()) << row;
      if (number.Visible()) {
        content.rows.push_back(std::to_string(row) + " " + description.Caption() + " " + number.Caption());
      }
    }
  });
  session.Close().OpenProperties();
  return content;
}

}  // namespace

TEST(PropertiesDialog, ALedShowsHalfItsLedNumber) {
  WizardSession session(Led);
  session.element->HardwareNumberLed(6);
  const Content content = Read(session);
  EXPECT_EQ(content.picture, "led");
  EXPECT_EQ(content.title, Text(10861));
  EXPECT_EQ(content.rows, Names{"0 text 10863 3"});
}

TEST(PropertiesDialog, AKeyWithoutLedShowsItsButtonNumber) {
  for (const enumTactisBaseElementType type : {Oval, Rect}) {
    WizardSession session(type);
    session.element->HardwareNumberButton(17);
    session.element->HardwareNumberLed(6);
    const Content content = Read(session);
    EXPECT_EQ(content.picture, "button");
    EXPECT_EQ(content.title, Text(10859));
    EXPECT_EQ(content.rows, Names{"0 text 10863 17"});
  }
}

TEST(PropertiesDialog, AKeyWithLedShowsItsButtonNumberUnderAnotherDescriptionAndHalfItsLedNumber) {
  for (const enumTactisBaseElementType type : {OvalLed, RectLed}) {
    WizardSession session(type);
    session.element->HardwareNumberButton(17);
    session.element->HardwareNumberLed(8);
    const Content content = Read(session);
    EXPECT_EQ(content.picture, "button");
    EXPECT_EQ(content.title, Text(10860));
    EXPECT_EQ(content.rows, (Names{"0 text 2503 17", "1 text 2504 4"}));
  }
}

TEST(PropertiesDialog, HalvesAreRoundedToTheEvenNeighbour) {
  struct Row {
    std::int32_t number;
    const char* shown;
  };
  for (const Row& row : {Row{5, "2"}, Row{7, "4"}, Row{6, "3"}, Row{0, "0"}, Row{-1, "0"}, Row{-3, "-2"}, Row{1, "0"},
                         Row{2147483647, "1073741824"}, Row{-2147483647 - 1, "-1073741824"}}) {
    {
      WizardSession led(Led);
      led.element->HardwareNumberLed(row.number);
      EXPECT_EQ(Read(led).rows, Names{std::string("0 text 10863 ") + row.shown}) << row.number;
    }
    WizardSession both(OvalLed);
    both.element->HardwareNumberLed(row.number);
    EXPECT_EQ(Read(both).rows.at(1), std::string("1 text 2504 ") + row.shown) << row.number;
  }
}

TEST(PropertiesDialog, AKeySwitchWithOneNumberShowsItInTheFirstRow) {
  WizardSession session(Key);
  session.element->HardwareNumberKey3(44);
  const Content content = Read(session);
  EXPECT_EQ(content.picture, "keyswitch");
  EXPECT_EQ(content.title, Text(10862));
  EXPECT_EQ(content.rows, Names{"0 text 10867 44"});
}

TEST(PropertiesDialog, AKeySwitchWithoutNumbersShowsPictureAndTitleAlone) {
  WizardSession session(Key);
  const Content content = Read(session);
  EXPECT_EQ(content.picture, "keyswitch");
  EXPECT_EQ(content.title, Text(10862));
  EXPECT_EQ(content.rows, Names{});
}

TEST(PropertiesDialog, AKeySwitchShowsAllEightNumbersInOrder) {
  WizardSession session(Key);
  for (std::int32_t index = 0; index < 8; ++index) session.element->HardwareNumberKeyAt(index, 100 + index);
  EXPECT_EQ(Read(session).rows,
            (Names{"0 text 10864 100", "1 text 10865 101", "2 text 10866 102", "3 text 10867 103", "4 text 10868 104",
                   "5 text 10869 105", "6 text 10870 106", "7 text 10871 107"}));
}

TEST(PropertiesDialog, OnlyMinusOneTakesNoRow) {
  WizardSession session(Key);
  session.element->HardwareNumberKey(0);
  session.element->HardwareNumberKey5(-2);
  EXPECT_EQ(Read(session).rows, (Names{"0 text 10864 0", "1 text 10869 -2"}));
}

TEST(PropertiesDialog, AnyOtherKindShowsNothing) {
  for (const std::int32_t type : {0, 7}) {
    WizardSession session(static_cast<enumTactisBaseElementType>(type));
    const Content content = Read(session);
    EXPECT_EQ(content.picture, "");
    EXPECT_EQ(content.title, "");
    EXPECT_EQ(content.rows, Names{});
  }
}

TEST(PropertiesDialog, TheCaptionIsTwoTextsWithABlankBetween) {
  WizardSession session(Led);
  EXPECT_EQ(Read(session).caption, "text 2500 text 2501");
}

TEST(PropertiesDialog, ItIsOwnedByTheHostsWindowAndRaisesNothing) {
  WizardSession session(Led);
  Module().lngDialogLeft = 500;
  const auto before = session.Record();
  session.host.Forget();
  Read(session);
  EXPECT_EQ(session.shown, Names{"frmPropertiesButton over HostForm at 0,0"});
  EXPECT_TRUE(session.host.Heard().empty());
  EXPECT_EQ(session.Record(), before);
  EXPECT_TRUE(session.platform.UserRegistry().Stored().empty());
}

TEST(PropertiesDialog, AFailingTextEndsLoadingWithWhatWasFilledUpToThen) {
  WizardSession session(Key);
  for (std::int32_t index = 0; index < 8; ++index) session.element->HardwareNumberKeyAt(index, 100 + index);
  // The texts of the form (two markers beside the eight of the rows), the caption, the title, and one row come through.
  session.platform.faults.Arm(Fault::Language, 10 + 1 + 1 + 1 + 1);
  EXPECT_EQ(Read(session).rows, Names{"0 text 10864 100"});
}

TEST(PropertiesDialog, ARowThatIsNotThereIsPassedOverSilently) {
  frmPropertiesButton dialog;
  EXPECT_NO_THROW(dialog.ShowPropertyRow(8, "x", 1));
  EXPECT_NO_THROW(dialog.ShowPropertyRow(-1, "x", 1));
}

}  // namespace plexel

#include <algorithm>

#include "configdialog/dialog_fixture.h"

namespace plexel {

namespace {

using ConfigurationDialogDesign = ConfigurationDialog;

struct Text {
  const char* control;
  const char* caption;
};

bool Overlap(const Control& left, const Control& right) {
  return left.Left() < right.Left() + right.Width() && right.Left() < left.Left() + left.Width() &&
         left.Top() < right.Top() + right.Height() && right.Top() < left.Top() + left.Height();
}

bool Placed(const Control& control) {
  return control.Kind() != ControlKind::Menu && control.Name() != "cmdFocusCatcher";
}

TEST_F(ConfigurationDialogDesign, TextsAreTheMarkersOfTheirNumbers) {
  const frmConfigurationDialog dialog;
  for (const Text& text : std::initializer_list<Text>{{"cmdOK", "@153"},
                                                      {"cmdCancel", "@154"},
                                                      {"cmdHelp", "@155"},
                                                      {"labButtonTitel", "@2001"},
                                                      {"fraCodeType", "@2008"},
                                                      {"optCodeType(0)", "@2700"},
                                                      {"optCodeType(1)", "@2701"},
                                                      {"optCodeType(2)", "@2702"},
                                                      {"labLedTitel", "@2101"},
                                                      {"Label1", "@2108"},
                                                      {"Label2", "Layer 1:"},
                                                      {"Label3", "Layer 2:"},
                                                      {"Label4", "Layer 3:"},
                                                      {"Label5", "Layer 4:"},
                                                      {"cmdFocusCatcher", "Focus"},
                                                      {"MNU_POPUP", "&Popup"}}) {
    const auto* control = dynamic_cast<CaptionControl*>(dialog.Find(text.control));
    ASSERT_NE(control, nullptr) << text.control;
    EXPECT_EQ(control->Caption(), text.caption) << text.control;
  }
  EXPECT_EQ(dialog.sstScanCode.TabCaption(0), "@2007");
  EXPECT_EQ(dialog.sstScanCode.TabCaption(1), "@2014");
  EXPECT_EQ(dialog.sstScanCode.TabCaption(2), "@2107");
  EXPECT_EQ(dialog.Caption(), "");
}

TEST_F(ConfigurationDialogDesign, MenuEntriesStandInTheirOrder) {
  const frmConfigurationDialog dialog;
  std::vector<std::string> entries;
  for (const MenuItem* entry : dialog.MNU_POPUP.Entries()) entries.push_back(entry->Name() + " " + entry->Caption());
  EXPECT_EQ(entries, (std::vector<std::string>{"MNU_POPUP_ASCII @2400", "MNU_SPECIALKEY @2402",
                                               "MNU_POPUP_WINDOWSKEY @2401", "MNU_POPUP_NONSTANDARDCODE @10814",
                                               "MNU_DUMMY -", "MNU_POPUP_COPY @159", "MNU_POPUP_PASTE @160"}));
}

TEST_F(ConfigurationDialogDesign, ControlsLieInsideTheirContainers) {
  const frmConfigurationDialog dialog;
  for (const Control* control : dialog.Controls()) {
    if (control->Kind() == ControlKind::Menu) continue;
    const Control* container = control->Container();
    const float width = container == nullptr ? dialog.ClientWidth() : container->Width();
    const float header = container != nullptr && container->Kind() == ControlKind::TabStrip ? 360.0F : 0.0F;
    const float height = container == nullptr ? dialog.ClientHeight() : container->Height() - header;
    EXPECT_GE(control->Left(), 0) << control->FullName();
    EXPECT_GE(control->Top(), 0) << control->FullName();
    EXPECT_LE(control->Left() + control->Width(), width) << control->FullName();
    EXPECT_LE(control->Top() + control->Height(), height) << control->FullName();
  }
}

TEST_F(ConfigurationDialogDesign, ControlsOfOneContainerDoNotOverlap) {
  const frmConfigurationDialog dialog;
  for (const Control* left : dialog.Controls()) {
    for (const Control* right : dialog.Controls()) {
      if (left == right || !Placed(*left) || !Placed(*right)) continue;
      if (left->Container() != right->Container() || left->Page() != right->Page()) continue;
      EXPECT_FALSE(Overlap(*left, *right)) << left->FullName() << " and " << right->FullName();
    }
  }
}

TEST_F(ConfigurationDialogDesign, FocusCatcherIsMadeAheadOfTheGridSoThatItLiesUnderIt) {
  const frmConfigurationDialog dialog;
  const auto& controls = dialog.Controls();
  EXPECT_LT(std::find(controls.begin(), controls.end(), &dialog.cmdFocusCatcher),
            std::find(controls.begin(), controls.end(), &dialog.msgScanCodes));
}

TEST_F(ConfigurationDialogDesign, EveryControlHasTheHelpTopicOfTheDialog) {
  const frmConfigurationDialog dialog;
  EXPECT_EQ(dialog.HelpContextID(), 2000);
  for (const Control* control : dialog.Controls()) EXPECT_EQ(control->HelpContextID(), 2000) << control->FullName();
}

TEST_F(ConfigurationDialogDesign, ThereIsNoDefaultButton) {
  const frmConfigurationDialog dialog;
  EXPECT_EQ(dialog.DefaultButton(), nullptr);
}

TEST_F(ConfigurationDialogDesign, FirstCodeTypeIsSet) {
  const frmConfigurationDialog dialog;
  EXPECT_TRUE(dialog.optCodeType[0].Value());
  EXPECT_FALSE(dialog.optCodeType[1].Value());
  EXPECT_FALSE(dialog.optCodeType[2].Value());
}

TEST_F(ConfigurationDialogDesign, NoteTakesAThousandCharactersInSeveralLines) {
  const frmConfigurationDialog dialog;
  EXPECT_EQ(dialog.txtButtonNotes.MaxLength(), 1000);
  EXPECT_TRUE(dialog.txtButtonNotes.MultiLine());
}

TEST_F(ConfigurationDialogDesign, MembersOutsideAControlArrayAreAnIndexFailure) {
  frmConfigurationDialog dialog;
  try {
    dialog.LedTypeBox(4);
    ADD_FAILURE() << "no failure";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Kind(), FailureKind::Index);
    EXPECT_STREQ(failure.what(), "a control array has no member 4");
  }
  EXPECT_THROW(dialog.LedTypeBox(-1), Failure);
  EXPECT_THROW(dialog.CodeTypeOption(3), Failure);
}

}  // namespace

}  // namespace plexel

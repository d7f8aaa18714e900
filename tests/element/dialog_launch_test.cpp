#include <functional>

#include "element_fixture.h"
#include "forms/form_directory.h"
#include "services/dialogs.h"
#include "services/shared_services.h"

namespace plexel {
namespace {

/// The element's dialogs as empty forms, which the test closes as soon as they are shown.
class DialogLaunch : public ElementTest {
 protected:
  DialogLaunch() {
    for (const FormName name : {dialogs::frmConfigurationDialog, dialogs::frmButtonWizardPage1,
                                dialogs::frmButtonWizardPage2, dialogs::frmPropertiesButton}) {
      FormDirectory::Instance().Add(name, [name] { return std::make_unique<Form>(name); });
    }
    platform.Modal().onShown = [this](Form& form, Window* owner) {
      shown.push_back(form.Name());
      owners.push_back(owner == nullptr ? "" : owner->WindowName());
    };
    platform.Modal().onRun = [this](Form& form) {
      if (whileShown) whileShown();
      form.Unload();
    };
    element->ElementType(Rect);
    host.Forget();
  }

  void WantAQuestion() {
    element->WizardOn(True);
    element->WizardOptions(ManuallyDefined);
    element->PressKeyDefLayer1("[a]");
    host.Forget();
  }
  void Answer(MessageAnswer answer) {
    platform.Messages().onShow = [answer](const std::string&, std::int32_t, const std::string&) { return answer; };
  }

  Names shown, owners;
  std::function<void()> whileShown;
};

const std::vector<std::string> definitionSent = {"SendKeyDefinition"};

TEST_F(DialogLaunch, WithoutTheWizardTheConfigurationDialogOpens) {
  element->OpenConfigurationDialog();
  EXPECT_EQ(shown, Names{dialogs::frmConfigurationDialog});
  EXPECT_EQ(host.EventNames(), definitionSent);
}

TEST_F(DialogLaunch, OpeningTakesTheRecordAndTheElement) {
  element->PressKeyDefLayer2("[b]");
  element->OpenConfigurationDialog();
  EXPECT_EQ(Module().udtSavedScanCodeInfo, element->TactisBaseElementScanCodeBuffer());
  EXPECT_EQ(Module().udtSavedScanCodeInfo.strLayer2PressString, "[b]");
  EXPECT_EQ(Module().ctlCurrentElement, element);
}

TEST_F(DialogLaunch, ALayerTakes43CodesAndWithVanta22) {
  element->OpenConfigurationDialog();
  EXPECT_EQ(Module().lngMaxScanCodes, 43);
  element->VantaEnabled(True);
  element->OpenConfigurationDialog();
  EXPECT_EQ(Module().lngMaxScanCodes, 22);
}

TEST_F(DialogLaunch, AVantaFlagOfOneIsNotTrue) {
  element->VantaEnabled(Boolean::Raw(1));
  element->OpenConfigurationDialog();
  EXPECT_EQ(Module().lngMaxScanCodes, 43);
}

TEST_F(DialogLaunch, AKeySwitchOpensNothingAndSendsNothing) {
  const auto before = component.Create("B", host);
  Module().ctlCurrentElement = before;
  Module().lngMaxScanCodes = 7;
  element->ElementType(Key);
  element->ButtonNotes("mine");
  host.Forget();
  element->OpenConfigurationDialog();
  EXPECT_TRUE(shown.empty());
  EXPECT_TRUE(host.Heard().empty());
  EXPECT_EQ(Module().udtSavedScanCodeInfo.strBaseElementNotes, "mine");
  EXPECT_EQ(Module().ctlCurrentElement, before);
  EXPECT_EQ(Module().lngMaxScanCodes, 7);
}

TEST_F(DialogLaunch, AnElementWithoutAKindOpensItsDialogs) {
  element->ElementType(static_cast<enumTactisBaseElementType>(0));
  element->OpenConfigurationDialog();
  element->WizardOn(True);
  element->OpenConfigurationDialog();
  EXPECT_EQ(shown, (Names{dialogs::frmConfigurationDialog, dialogs::frmButtonWizardPage1}));
}

TEST_F(DialogLaunch, TheWizardOfAKeyBeginsWithItsFirstPage) {
  element->WizardOn(True);
  element->OpenConfigurationDialog();
  EXPECT_EQ(shown, Names{dialogs::frmButtonWizardPage1});
}

TEST_F(DialogLaunch, TheWizardOfAnLedBeginsWithItsSecondPage) {
  element->ElementType(Led);
  element->WizardOn(True);
  element->OpenConfigurationDialog();
  EXPECT_EQ(shown, Names{dialogs::frmButtonWizardPage2});
}

TEST_F(DialogLaunch, AnyWizardFlagButZeroWantsTheWizard) {
  element->WizardOn(Boolean::Raw(1));
  element->OpenConfigurationDialog();
  EXPECT_EQ(shown, Names{dialogs::frmButtonWizardPage1});
}

TEST_F(DialogLaunch, AKeyMadeByHandWithoutTextsOpensTheWizardUnasked) {
  element->WizardOn(True);
  element->WizardOptions(ManuallyDefined);
  element->LEDTypeLayer1(RunLed);
  element->OpenConfigurationDialog();
  EXPECT_TRUE(platform.Messages().Shown().empty());
  EXPECT_EQ(shown, Names{dialogs::frmButtonWizardPage1});
}

TEST_F(DialogLaunch, AKeyOfTheWizardWithADefinitionOpensTheWizardUnasked) {
  element->WizardOn(True);
  element->WizardOptions(NormalKey);
  element->PressKeyDefLayer1("[a]");
  element->OpenConfigurationDialog();
  EXPECT_TRUE(platform.Messages().Shown().empty());
  EXPECT_EQ(shown, Names{dialogs::frmButtonWizardPage1});
}

TEST_F(DialogLaunch, TheQuestionHasSixParagraphsAndATitle) {
  for (std::int32_t number = 1; number <= 6; ++number) {
    surroundings.Language().Set(2402 + number, "p" + std::to_string(number));
  }
  surroundings.Language().Set(6002, "title");
  WantAQuestion();
  element->OpenConfigurationDialog();
  ASSERT_EQ(platform.Messages().Shown().size(), 1U);
  const auto& message = platform.Messages().Shown().front();
  EXPECT_EQ(message.prompt, "p1\r\n\r\n\r\np2\r\n\r\np3\r\n\r\np4\r\n\r\np5\r\n\r\n\r\np6");
  EXPECT_EQ(message.title, "title");
  EXPECT_EQ(message.style, 19);
}

TEST_F(DialogLaunch, YesOpensTheConfigurationDialog) {
  WantAQuestion();
  Answer(MessageAnswer::Yes);
  element->OpenConfigurationDialog();
  EXPECT_EQ(shown, Names{dialogs::frmConfigurationDialog});
  EXPECT_EQ(host.EventNames(), definitionSent);
}

TEST_F(DialogLaunch, NoOpensTheWizard) {
  WantAQuestion();
  Answer(MessageAnswer::No);
  element->OpenConfigurationDialog();
  element->ElementType(Led);
  element->OpenConfigurationDialog();
  EXPECT_EQ(shown, (Names{dialogs::frmButtonWizardPage1, dialogs::frmButtonWizardPage2}));
}

TEST_F(DialogLaunch, CancelShowsNothingAndStillSendsTheDefinition) {
  WantAQuestion();
  Answer(MessageAnswer::Cancel);
  element->OpenConfigurationDialog();
  EXPECT_TRUE(shown.empty());
  EXPECT_EQ(host.EventNames(), definitionSent);
}

TEST_F(DialogLaunch, AMissingTextLeavesAGapInTheQuestion) {
  for (std::int32_t number = 1; number <= 6; ++number) surroundings.Language().Set(2402 + number, "p");
  surroundings.Language().Set(6002, "title");
  WantAQuestion();
  platform.faults.Arm(Fault::Language, 3);
  element->OpenConfigurationDialog();
  ASSERT_EQ(platform.Messages().Shown().size(), 1U);
  EXPECT_EQ(platform.Messages().Shown().front().prompt, "p\r\n\r\n\r\np\r\n\r\n\r\n\r\np\r\n\r\np\r\n\r\n\r\np");
  EXPECT_EQ(platform.Messages().Shown().front().title, "title");
}

TEST_F(DialogLaunch, AQuestionThatCannotBeShownIsPassedOver) {
  WantAQuestion();
  platform.faults.Turn(Fault::Messages, true);
  element->OpenConfigurationDialog();
  EXPECT_TRUE(shown.empty());
  EXPECT_EQ(host.EventNames(), definitionSent);
}

TEST_F(DialogLaunch, ASecondOpeningOfTheSameElementDoesNothing) {
  element->ButtonNotes("before");
  whileShown = [&] {
    element->ButtonNotes("meanwhile");
    host.Forget();
    element->OpenConfigurationDialog();
    EXPECT_TRUE(host.Heard().empty());
  };
  element->OpenConfigurationDialog();
  EXPECT_EQ(shown, Names{dialogs::frmConfigurationDialog});
  EXPECT_EQ(Module().udtSavedScanCodeInfo.strBaseElementNotes, "before");
}

TEST_F(DialogLaunch, AClosedDialogOpensAgain) {
  element->OpenConfigurationDialog();
  element->OpenConfigurationDialog();
  EXPECT_EQ(shown.size(), 2U);
}

TEST_F(DialogLaunch, ADialogThatCannotBeShownIsPassedOver) {
  platform.faults.Turn(Fault::Show, true);
  element->OpenConfigurationDialog();
  EXPECT_EQ(host.EventNames(), definitionSent);
  platform.faults.Turn(Fault::Show, false);
  element->OpenConfigurationDialog();
  EXPECT_EQ(shown, Names{dialogs::frmConfigurationDialog});
}

TEST_F(DialogLaunch, TheDefinitionIsSentWhenTheDialogHasGone) {
  bool openAtEvent = true;
  host.onEvent = [&](const HostEvent&) { openAtEvent = platform.Modal().Topmost() != nullptr; };
  element->OpenConfigurationDialog();
  EXPECT_FALSE(openAtEvent);
}

TEST_F(DialogLaunch, TheDefinitionIsThatBehindTheDialog) {
  whileShown = [&] {
    element->PressKeyDefLayer1("[new]");
    host.Forget();
  };
  element->OpenConfigurationDialog();
  ASSERT_EQ(host.Events().size(), 1U);
  EXPECT_EQ(host.Events().front().arguments.front(), HostEvent::Value("[new]"));
}

TEST_F(DialogLaunch, AFailingListenerBehindTheDialogIsPassedOver) {
  platform.faults.Turn(Fault::HandlerSendKeyDefinition, true);
  EXPECT_NO_THROW(element->OpenConfigurationDialog());
  EXPECT_EQ(host.EventNames(), definitionSent);
}

TEST_F(DialogLaunch, FocusEventsDuringADialogSendTheirOwnDefinition) {
  whileShown = [&] { element->UserControl_GotFocus(); };
  element->OpenConfigurationDialog();
  EXPECT_EQ(host.EventNames(), (Names{"SendKeyDefinition", "SendKeyDefinition"}));
}

TEST_F(DialogLaunch, TheHostsFormOwnsTheDialog) {
  element->ParentWindow(std::make_shared<HostForm>());
  element->OpenConfigurationDialog();
  EXPECT_EQ(owners, Names{"HostForm"});
}

TEST_F(DialogLaunch, WithoutAHostFormTheDialogHasNoOwner) {
  element->OpenConfigurationDialog();
  EXPECT_EQ(owners, Names{""});
}

TEST_F(DialogLaunch, TheOwnerLivesAsLongAsTheDialog) {
  const auto form = std::make_shared<HostForm>();
  const std::weak_ptr<HostForm> watched = form;
  element->ParentWindow(form);
  whileShown = [&] {
    element->ParentWindow(nullptr);
    EXPECT_GT(watched.use_count(), 1);
  };
  element->OpenConfigurationDialog();
  EXPECT_EQ(watched.use_count(), 1);
}

TEST_F(DialogLaunch, AHostMayLetTheElementGoWhileItsDialogIsOpen) {
  const std::weak_ptr<ctlPlexelBaseElement> watched = element;
  ctlPlexelBaseElement* const raw = element.get();
  whileShown = [&] {
    element.reset();
    Module().ctlCurrentElement.reset();
    EXPECT_FALSE(watched.expired());
  };
  raw->OpenConfigurationDialog();
  EXPECT_EQ(host.EventNames(), definitionSent);
  EXPECT_TRUE(watched.expired());
}

TEST_F(DialogLaunch, ReturnOnAFocusedElementOpensItsDialog) {
  element->FocusVisible(True);
  element->UserControl_KeyPress(13);
  EXPECT_EQ(shown, Names{dialogs::frmConfigurationDialog});
}

TEST_F(DialogLaunch, ReturnWithoutAVisibleFocusDoesNothingButTheHostStillOpensTheDialog) {
  element->UserControl_KeyPress(13);
  element->FocusVisible(Boolean::Raw(1));
  element->UserControl_KeyPress(13);
  EXPECT_TRUE(shown.empty());
  element->OpenConfigurationDialog();
  EXPECT_EQ(shown, Names{dialogs::frmConfigurationDialog});
}

TEST_F(DialogLaunch, OtherKeysOpenNothing) {
  element->FocusVisible(True);
  for (const std::int16_t code : std::vector<std::int16_t>{0, 10, 27, 32}) element->UserControl_KeyPress(code);
  EXPECT_TRUE(shown.empty());
}

TEST_F(DialogLaunch, ClicksOpenNothing) {
  element->UserControl_MouseUp(1, 0, 0, 0);
  element->UserControl_DblClick();
  EXPECT_TRUE(shown.empty());
}

TEST_F(DialogLaunch, ThePropertiesOpenForTheElementAndSendNothing) {
  element->ParentWindow(std::make_shared<HostForm>());
  element->OpenPropertiesDialog();
  EXPECT_EQ(shown, Names{dialogs::frmPropertiesButton});
  EXPECT_EQ(owners, Names{"HostForm"});
  EXPECT_EQ(Module().ctlCurrentElement, element);
  EXPECT_TRUE(host.Heard().empty());
}

TEST_F(DialogLaunch, ThePropertiesLeaveTheSavedRecordAndTheGuard) {
  const auto before = Module().udtSavedScanCodeInfo;
  element->ButtonNotes("note");
  whileShown = [&] {
    whileShown = nullptr;
    element->OpenConfigurationDialog();
  };
  element->OpenPropertiesDialog();
  EXPECT_EQ(shown, (Names{dialogs::frmPropertiesButton, dialogs::frmConfigurationDialog}));
  Module().udtSavedScanCodeInfo = before;
  element->OpenPropertiesDialog();
  EXPECT_EQ(Module().udtSavedScanCodeInfo, before);
}

TEST_F(DialogLaunch, ThePropertiesOpenForAKeySwitchToo) {
  element->ElementType(Key);
  element->OpenPropertiesDialog();
  EXPECT_EQ(shown, Names{dialogs::frmPropertiesButton});
}

TEST_F(DialogLaunch, PropertiesThatCannotBeShownEndQuietly) {
  platform.faults.Turn(Fault::Show, true);
  EXPECT_NO_THROW(element->OpenPropertiesDialog());
  EXPECT_TRUE(shown.empty());
  EXPECT_EQ(Module().ctlCurrentElement, element);
}

}  // namespace
}  // namespace plexel

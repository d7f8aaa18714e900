#include <algorithm>

#include "wizard/frmButtonWizardPage1.h"
#include "wizard/frmButtonWizardPage2.h"
#include "wizard/frmButtonWizardPage3.h"
#include "wizard/frmPropertiesButton.h"
#include "wizard/wizard_session.h"

namespace plexel {

namespace {

using Names = std::vector<std::string>;

std::vector<std::unique_ptr<Form>> Pages() {
  std::vector<std::unique_ptr<Form>> pages;
  pages.push_back(std::make_unique<frmButtonWizardPage1>());
  pages.push_back(std::make_unique<frmButtonWizardPage2>());
  pages.push_back(std::make_unique<frmButtonWizardPage3>());
  return pages;
}

std::string CaptionOf(const Form& form, const char* name) {
  const auto* control = dynamic_cast<const CaptionControl*>(form.Find(name));
  return control == nullptr ? "none" : control->Caption();
}

bool Overlap(const Control& a, const Control& b) {
  return a.Left() < b.Left() + b.Width() && b.Left() < a.Left() + a.Width() && a.Top() < b.Top() + b.Height() &&
         b.Top() < a.Top() + a.Height();
}

/// The controls that stand beside each other on a form's face.
std::vector<Control*> Face(const Form& form, const Control* container) {
  std::vector<Control*> face;
  for (Control* control : form.Controls()) {
    if (control->Visible() && control->Container() == container && control->Kind() != ControlKind::Shape &&
        control->Kind() != ControlKind::ImageList && control->Name() != "cmdFocusCatcher") {
      face.push_back(control);
    }
  }
  return face;
}

void ExpectNoOverlap(const Form& form, const Control* container, float width, float height) {
  const std::vector<Control*> face = Face(form, container);
  for (std::size_t i = 0; i < face.size(); ++i) {
    EXPECT_GE(face[i]->Left(), 0) << face[i]->FullName();
    EXPECT_GE(face[i]->Top(), 0) << face[i]->FullName();
    EXPECT_LE(face[i]->Left() + face[i]->Width(), width) << face[i]->FullName();
    EXPECT_LE(face[i]->Top() + face[i]->Height(), height) << face[i]->FullName();
    for (std::size_t j = i + 1; j < face.size(); ++j) {
      EXPECT_FALSE(Overlap(*face[i], *face[j])) << face[i]->FullName() << " and " << face[j]->FullName();
    }
  }
}

}  // namespace

TEST(WizardDesign, AllPagesHaveTheSameClientSize) {
  for (const auto& page : Pages()) {
    EXPECT_EQ(page->ClientWidth(), 7425);
    EXPECT_EQ(page->ClientHeight(), 5220);
  }
}

TEST(WizardDesign, CaptionMarkersAreThoseOfEachPage) {
  const std::vector<Names> expected = {{"@2900", "@2901", "@2902", "@111", "none", "none", "@101", "@168"},
                                       {"@2900", "@2901", "@2908", "@111", "none", "@112", "@101", "@168"},
                                       {"@2900", "@2901", "@2909", "none", "@100", "@112", "@101", "@168"}};
  const auto pages = Pages();
  for (std::size_t i = 0; i < pages.size(); ++i) {
    Names markers = {pages[i]->Caption()};
    for (const char* name :
         {"labTitel", "labDescription", "cmdForward", "cmdOK", "cmdBack", "cmdCancel", "labLimitations"}) {
      markers.push_back(CaptionOf(*pages[i], name));
    }
    EXPECT_EQ(markers, expected[i]);
  }
}

TEST(WizardDesign, CaptionMarkersOfTheChoicesAreTheirOwn) {
  const frmButtonWizardPage1 page1;
  EXPECT_EQ(CaptionOf(page1, "optKeyType(0)"), "@2903");
  EXPECT_EQ(CaptionOf(page1, "optKeyType(1)"), "@2904");
  EXPECT_EQ(CaptionOf(page1, "optKeyType(2)"), "@2905");
  EXPECT_EQ(CaptionOf(page1, "optKeyType(3)"), "@2907");
  EXPECT_EQ(CaptionOf(page1, "cmdFocusCatcher"), "FocusCatcher");
  const frmButtonWizardPage2 page2;
  EXPECT_EQ(CaptionOf(page2, "labAllavailableLEDFunctions"), "@2912");
  EXPECT_EQ(CaptionOf(page2, "labAllLedsAlreadyDefined"), "@2911");
}

TEST(WizardDesign, HelpContextsAreThoseOfThePageAndTheDeleteButtonOfPage1HasThatOfPage2) {
  const std::vector<std::int32_t> contexts = {2001, 2002, 2003};
  const auto pages = Pages();
  for (std::size_t i = 0; i < pages.size(); ++i) {
    EXPECT_EQ(pages[i]->HelpContextID(), contexts[i]);
    for (const Control* control : pages[i]->Controls()) {
      EXPECT_EQ(control->HelpContextID(), control->Name() == "cmdDeleteKEY" ? 2002 : contexts[i]) << control->Name();
    }
  }
}

TEST(WizardDesign, Page1HasNeitherDefaultNorCancelButtonAndKeyPreview) {
  const frmButtonWizardPage1 page;
  EXPECT_EQ(page.DefaultButton(), nullptr);
  EXPECT_EQ(page.CancelButton(), nullptr);
  EXPECT_TRUE(page.KeyPreview());
}

TEST(WizardDesign, ReturnIsForwardOrOkAndEscapeIsCancelOnPages2And3) {
  const frmButtonWizardPage2 page2;
  EXPECT_EQ(page2.DefaultButton(), page2.Find("cmdForward"));
  EXPECT_EQ(page2.CancelButton(), page2.Find("cmdCancel"));
  const frmButtonWizardPage3 page3;
  EXPECT_EQ(page3.DefaultButton(), page3.Find("cmdOK"));
  EXPECT_EQ(page3.CancelButton(), page3.Find("cmdCancel"));
}

TEST(WizardDesign, TabOrderAndTopToBottomOrderOfPage1PutTipKeyAboveNormalKey) {
  const frmButtonWizardPage1 page;
  Names order;
  float top = 0;
  for (const Control* control : page.ControlsInTabOrder()) {
    if (!control->Focusable() || order.size() == 8) continue;
    order.push_back(control->FullName());
    EXPECT_GT(control->Top(), top) << control->FullName();
    top = control->Top();
  }
  EXPECT_EQ(order, (Names{"optKeyType(1)", "optKeyType(0)", "txtScanCodes", "optKeyType(2)", "cmdSpecialIPCFunction",
                          "optKeyType(3)", "cmbWindowsShortCuts", "cmdDeleteKEY"}));
}

TEST(WizardDesign, TheFieldsOfPage1AreDisabledAndTheBoxIsReadOnlyAndCentred) {
  const frmButtonWizardPage1 page;
  for (const char* name : {"txtScanCodes", "cmdSpecialIPCFunction", "cmbWindowsShortCuts"}) {
    EXPECT_FALSE(page.Find(name)->Enabled()) << name;
  }
  const auto& box = dynamic_cast<const TextBox&>(*page.Find("txtScanCodes"));
  EXPECT_TRUE(box.Locked());
  EXPECT_EQ(box.Alignment(), TextAlignment::Centre);
}

TEST(WizardDesign, PicturesAreNamed) {
  const auto pages = Pages();
  for (const auto& page : pages) {
    EXPECT_EQ(dynamic_cast<const PictureBox&>(*page->Find("imgTitlePic")).Picture(), "title");
  }
  EXPECT_EQ(dynamic_cast<const CommandButton&>(*pages[0]->Find("cmdDeleteKEY")).Picture(), "delete");
  EXPECT_EQ(dynamic_cast<const CommandButton&>(*pages[1]->Find("cmdDeleteLED")).Picture(), "delete");
  EXPECT_EQ(dynamic_cast<const PictureBox&>(*pages[1]->Find("imgAttention")).Picture(), "attention");
}

TEST(WizardDesign, NothingOverlapsOrLeavesThePageOnceThePictureIsScaled) {
  WizardSession session(OvalLed);
  const auto look = [&] { ExpectNoOverlap(session.Top(), nullptr, 7425, 5220); };
  session.Then(look).Click("cmdForward").Then(look);
  session.Then([&] {
    session.Get<Control>("imgAttention").Visible(false);
    session.Get<Control>("labAllLedsAlreadyDefined").Visible(false);
    for (const char* name : {"labAllavailableLEDFunctions", "cmbLEDTypes", "cmdDeleteLED"}) {
      session.Get<Control>(name).Visible(true);
    }
    look();
  });
  session.Click("cmdForward").Then(look).Click("cmdCancel");
  session.Open();
}

TEST(WizardDesign, TheTitlePictureEndsAtTheRuleOnAScreenOf96Pixels) {
  WizardSession session(Rect);
  session.Then([&] {
    const auto& picture = session.Get<PictureBox>("imgTitlePic");
    EXPECT_TRUE(picture.Stretch());
    EXPECT_EQ(picture.Width(), 1650);
    EXPECT_EQ(picture.Top() + picture.Height(), session.Get<Control>("fraDummy").Top());
  });
  session.Click("cmdCancel");
  session.Open();
}

TEST(WizardDesign, TheTitlePictureGrowsWithThePixelsOfTheScreenOnEveryPage) {
  WizardSession session(OvalLed);
  session.platform.TheScreen().LogicalPixels(120);
  const auto look = [&] {
    EXPECT_EQ(session.Get<PictureBox>("imgTitlePic").Width(), 1650 * 1.25F);
    EXPECT_EQ(session.Get<PictureBox>("imgTitlePic").Height(), 4530 * 1.25F - 30);
  };
  session.Then(look).Click("cmdForward").Then(look).Click("cmdForward").Then(look).Click("cmdCancel");
  session.Open();
}

TEST(WizardDesign, TheTitlePictureTakesAsMuchOfThePageOnAFinerScreen) {
  WizardSession session(Rect);
  session.platform.TheScreen().LogicalPixels(144);
  session.platform.TheScreen().TwipsPerPixel(10, 10);
  session.Then([&] {
    EXPECT_EQ(session.Get<PictureBox>("imgTitlePic").Width(), 1650);
    EXPECT_EQ(session.Get<PictureBox>("imgTitlePic").Height(), 4530 - 30);
  });
  session.Click("cmdCancel");
  session.Open();
}

TEST(WizardDesign, ATitlePictureThatIsStretchingStaysAsItIs) {
  WizardSession session(Rect);
  session.Then([&] {
    const float height = session.Get<PictureBox>("imgTitlePic").Height();
    dynamic_cast<WizardPage&>(session.Top()).ScaleTitlePicture();
    EXPECT_EQ(session.Get<PictureBox>("imgTitlePic").Height(), height);
  });
  session.Click("cmdCancel");
  session.Open();
}

TEST(WizardDesign, TheLinkOpensTheTopicOfTheLimitationsOnEveryPage) {
  WizardSession session(OvalLed);
  session.Click("labLimitations").Click("cmdForward").Click("labLimitations").Click("cmdForward");
  session.Click("labLimitations").Click("cmdCancel");
  session.Open();
  ASSERT_EQ(session.platform.Help().Shown().size(), 3U);
  for (const HeadlessHelp::Topic& topic : session.platform.Help().Shown()) EXPECT_EQ(topic.topic, 1002);
}

TEST(WizardDesign, OnlyPage1SetsTheHelpFile) {
  WizardSession session(Led);
  Module().HelpFile = "as it stands";
  session.Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(Module().HelpFile, "as it stands");
}

TEST(WizardDesign, CaptionsAreTranslatedOnEveryPage) {
  WizardSession session(OvalLed);
  const auto look = [&](std::int32_t description) {
    EXPECT_EQ(session.Top().Caption(), Text(2900));
    EXPECT_EQ(CaptionOf(session.Top(), "labDescription"), Text(description));
  };
  session.Then([&] { look(2902); }).Click("cmdForward").Then([&] { look(2908); }).Click("cmdForward");
  session.Then([&] { look(2909); }).Click("cmdCancel");
  session.Open();
}

TEST(PropertiesDesign, TheClientSizeAndTheCaptionMarkersAreFixed) {
  const frmPropertiesButton dialog;
  EXPECT_EQ(dialog.ClientWidth(), 5265);
  EXPECT_EQ(dialog.ClientHeight(), 5805);
  EXPECT_EQ(dialog.Caption(), "@2500");
  const auto& strip = dynamic_cast<const TabStrip&>(*dialog.Find("SSTab1"));
  EXPECT_EQ(strip.Pages(), 1);
  EXPECT_EQ(strip.TabCaption(0), "@2505");
  EXPECT_EQ(CaptionOf(dialog, "labNumberDescription(7)"), "@2503");
}

TEST(PropertiesDesign, NothingOverlapsOrLeavesThePage) {
  const frmPropertiesButton dialog;
  const Control* const strip = dialog.Find("SSTab1");
  constexpr float tabs = 360;
  ExpectNoOverlap(dialog, nullptr, dialog.ClientWidth(), dialog.ClientHeight());
  ExpectNoOverlap(dialog, strip, strip->Width(), strip->Height() - tabs);
  EXPECT_EQ(Face(dialog, strip).size(), 19U);
}

}  // namespace plexel

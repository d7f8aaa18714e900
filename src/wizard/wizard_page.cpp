#include "wizard/wizard_page.h"

#include "services/conversion.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

constexpr std::int32_t helpTopic = 1002;
constexpr float titlePictureTrim = 30;

}  // namespace

WizardPage::WizardPage(std::string_view name, std::string_view description, float descriptionHeight) : Form(name) {
  Caption("@2900");
  Width(PageWidth + FrameWidth);
  Height(PageHeight + FrameHeight);

  shpBackGround.Place(0, 0, PageWidth, PageHeight);
  imgTitlePic.Place(0, 0, 1650, RuleTop + titlePictureTrim);
  imgTitlePic.Picture("title");
  labTitel.Caption("@2901");
  labTitel.Look(LabelLook::Title);
  labTitel.Place(ContentLeft, 120, ContentWidth, 420);
  labDescription.Caption(std::string(description));
  labDescription.Place(ContentLeft, DescriptionTop, ContentWidth, descriptionHeight);
  fraDummy.Place(0, RuleTop, PageWidth, RuleHeight);
  labLimitations.Caption("@168");
  labLimitations.Look(LabelLook::Link);
  labLimitations.Place(Margin, 4755, 2940, 300);
  labLimitations.OnClick = [this] { labLimitations_Click(); };
  cmdCancel.Caption("@101");
  PlaceInButtonRow(cmdCancel, 0);
}

void WizardPage::SaveDialogPosition() {
  EndQuietly([this] {
    const std::intptr_t key = OpenPositions();
    StorePosition(key, SavedTop, SingleToText(Top()));
    StorePosition(key, SavedLeft, SingleToText(Left()));
    ClosePositions(key);
  });
}

void WizardPage::ScaleTitlePicture() {
  EndQuietly([this] {
    if (imgTitlePic.Stretch()) return;
    imgTitlePic.Stretch(true);
    imgTitlePic.Width(static_cast<float>(imgTitlePic.Width() * GetDpiScaleFactor()));
    imgTitlePic.Height(static_cast<float>(imgTitlePic.Height() * GetDpiScaleFactor() - titlePictureTrim));
  });
}

void WizardPage::labLimitations_Click() {
  EndQuietly([this] { ShowHelpTopic(reinterpret_cast<std::intptr_t>(this), helpTopic); });
}

void WizardPage::PlaceInButtonRow(CommandButton& button, int fromRight) {
  const float pitch = ButtonWidth + ButtonGap;
  button.Place(PageWidth - Margin - ButtonWidth - pitch * static_cast<float>(fromRight), ButtonTop, ButtonWidth,
               ButtonHeight);
}

void WizardPage::UseHelpContext(std::int32_t context) {
  HelpContextID(context);
  for (Control* control : Controls()) control->HelpContextID(context);
}

void WizardPage::TakeHandedOverLeft() { Left(static_cast<float>(Module().lngDialogLeft)); }

void WizardPage::TakeHandedOverTop() { Top(static_cast<float>(Module().lngDialogTop)); }

}  // namespace plexel

#include "wizard/wizard_page.h"

namespace plexel {

WizardPage::WizardPage(std::string_view name, std::string_view description, float descriptionHeight) : Form(name) {
  Caption("@2900");
  Width(PageWidth + FrameWidth);
  Height(PageHeight + FrameHeight);

  shpBackGround.Place(0, 0, PageWidth, PageHeight);
  imgTitlePic.Place(0, 0, 1650, RuleTop + TitlePictureTrim);
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

void WizardPage::PlaceInButtonRow(CommandButton& button, int fromRight) {
  const float pitch = ButtonWidth + ButtonGap;
  button.Place(PageWidth - Margin - ButtonWidth - pitch * static_cast<float>(fromRight), ButtonTop, ButtonWidth,
               ButtonHeight);
}

void WizardPage::UseHelpContext(std::int32_t context) {
  HelpContextID(context);
  for (Control* control : Controls()) control->HelpContextID(context);
}

}  // namespace plexel

#include "wizard/frmButtonWizardPage2.h"

#include "forms/list_keys.h"
#include "services/dialogs.h"

namespace plexel {

frmButtonWizardPage2::frmButtonWizardPage2() : WizardPage(dialogs::frmButtonWizardPage2, "@2908", 1200) {
  Design();
  UseHelpContext(2002);
  ConnectEvents();
}

void frmButtonWizardPage2::Design() {
  constexpr float top = 2040, fieldHeight = 375, gap = 105, picture = 480;
  labAllavailableLEDFunctions.Caption("@2912");
  labAllavailableLEDFunctions.Place(ContentLeft, top, ContentWidth, 300);
  cmbLEDTypes.Place(ContentLeft, top + 345, ContentWidth - fieldHeight - gap, fieldHeight);
  cmbLEDTypes.Sorted(true);
  labAllavailableLEDFunctions.Names(cmbLEDTypes);
  cmdDeleteLED.Picture("delete");
  cmdDeleteLED.Place(ContentLeft + ContentWidth - fieldHeight, top + 345, fieldHeight, fieldHeight);

  imgAttention.Picture("attention");
  imgAttention.Place(ContentLeft, top, picture, picture);
  imgAttention.Stretch(true);
  imgAttention.Visible(false);
  labAllLedsAlreadyDefined.Caption("@2911");
  labAllLedsAlreadyDefined.Place(ContentLeft + picture + gap, top, ContentWidth - picture - gap, 1800);
  labAllLedsAlreadyDefined.Visible(false);

  cmdBack.Caption("@112");
  PlaceInButtonRow(cmdBack, 2);
  cmdForward.Caption("@111");
  PlaceInButtonRow(cmdForward, 1);
  cmdForward.Default(true);
  cmdCancel.Cancel(true);

  cmbLEDTypes.TabIndex(0);
  cmdDeleteLED.TabIndex(1);
  cmdForward.TabIndex(2);
  cmdCancel.TabIndex(3);
  cmdBack.TabIndex(4);
}

void frmButtonWizardPage2::ConnectEvents() {
  cmbLEDTypes.OnKeyDown = [](std::int16_t& keyCode, std::int16_t) { KeepListKeys(keyCode); };
  cmbLEDTypes.OnKeyPress = [](std::int16_t& keyAscii) { keyAscii = 0; };
  cmdDeleteLED.OnClick = [this] { cmdDeleteLED_Click(); };
  cmdForward.OnClick = [this] { cmdForward_Click(); };
  cmdBack.OnClick = [this] { cmdBack_Click(); };
  cmdCancel.OnClick = [this] { cmdCancel_Click(); };
}

}  // namespace plexel

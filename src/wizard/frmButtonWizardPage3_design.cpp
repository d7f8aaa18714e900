#include "wizard/frmButtonWizardPage3.h"

#include "services/dialogs.h"

namespace plexel {

frmButtonWizardPage3::frmButtonWizardPage3()
    : WizardPage(dialogs::frmButtonWizardPage3, "@2909", RuleTop - DescriptionTop - Margin) {
  cmdBack.Caption("@112");
  PlaceInButtonRow(cmdBack, 2);
  cmdOK.Caption("@100");
  PlaceInButtonRow(cmdOK, 1);
  cmdOK.Default(true);
  cmdCancel.Cancel(true);
  cmdOK.TabIndex(0);
  cmdCancel.TabIndex(1);
  cmdBack.TabIndex(2);
  UseHelpContext(2003);
  cmdOK.OnClick = [this] { cmdOK_Click(); };
  cmdBack.OnClick = [this] { cmdBack_Click(); };
  cmdCancel.OnClick = [this] { cmdCancel_Click(); };
}

}  // namespace plexel

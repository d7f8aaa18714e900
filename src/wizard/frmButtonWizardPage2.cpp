#include "wizard/frmButtonWizardPage2.h"

#include "element/ctlPlexelBaseElement.h"
#include "forms/form_directory.h"
#include "platform/platform.h"
#include "services/dialogs.h"
#include "services/failure_styles.h"
#include "services/led_functions.h"
#include "services/led_offer.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

/// The text of a layer without a function, which is never an entry of the list.
std::string TextOfNoLed() { return LedTypeToText(LedNotEnabled); }

}  // namespace

void frmButtonWizardPage2::OnLoad() {
  EndQuietly([this] {
    TakeHandedOverLeft();
    TakeHandedOverTop();
    ScaleTitlePicture();
    TranslateForm(*this, "@");
    FillLedFunctionList();
    if (CurrentElement().LEDTypeLayer1() == LedNotEnabled) ShowNotice(cmbLEDTypes.ListCount() == 0);
    Platform::Current().Events().DoEvents();
    const enumLedType type = CurrentElement().LEDTypeLayer1();
    cmbLEDTypes.Text(type != LedNotEnabled ? LedTypeToText(type) : TextOfNoLed());
    cmdForward.Enabled(true);
  });
}

void frmButtonWizardPage2::OnQueryUnload(UnloadMode mode) {
  if (mode == UnloadMode::CloseBox) RestoreDefinition();
}

void frmButtonWizardPage2::FillLedFunctionList() {
  EndQuietly([this] {
    // The LEDs that tell the layer stay with the configuration dialog.
    for (const enumLedType type : LedsFor(CurrentElement().VantaEnabled())) {
      if (TellsLayer(type) || !TargetHasLed(type, CurrentElement().TargetSystem())) continue;
      const Boolean used = CurrentElement().CheckIfLedIsAlreadyDefined(type, 1);
      if (IsTrue(used) && CurrentElement().LEDTypeLayer1() != type) continue;
      cmbLEDTypes.AddItem(LedTypeToText(type));
    }
  });
}

void frmButtonWizardPage2::ShowNotice(bool notice) {
  imgAttention.Visible(notice);
  labAllLedsAlreadyDefined.Visible(notice);
  cmbLEDTypes.Visible(!notice);
  cmdDeleteLED.Visible(!notice);
  labAllavailableLEDFunctions.Visible(!notice);
}

void frmButtonWizardPage2::RestoreDefinition() {
  EndQuietly([this] {
    SaveDialogPosition();
    CurrentElement().SetTactisBaseElementDefinition(Module().udtSavedScanCodeInfo);
    Module().bWizardPageChanging = False;
  });
}

void frmButtonWizardPage2::cmdDeleteLED_Click() { cmbLEDTypes.Text(TextOfNoLed()); }

void frmButtonWizardPage2::cmdForward_Click() {
  cmdForward.Enabled(false);
  if (cmbLEDTypes.Text() != TextOfNoLed()) {
    StoreFunction();
  } else {
    StoreNoFunction();
  }
  FormDirectory::Instance().ShowModal(dialogs::frmButtonWizardPage3, this);
  cmdForward.Enabled(true);
  if (IsTrue(Module().bWizardPageChanging)) {
    Module().bWizardPageChanging = False;
  } else {
    Unload();
  }
}

void frmButtonWizardPage2::StoreFunction() {
  CurrentElement().LEDTypeLayer1(LedTextToType(cmbLEDTypes.Text()));
  for (std::int32_t layer = 2; layer <= LayerCount; ++layer) {
    CurrentElement().LEDTypeLayer(layer, CurrentElement().LEDTypeLayer1());
  }
  CurrentElement().ShowDefinedObject(True);
}

void frmButtonWizardPage2::StoreNoFunction() {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) CurrentElement().LEDTypeLayer(layer, LedNotEnabled);
  if (CurrentElement().PressKeyDefLayer1().empty()) CurrentElement().ShowDefinedObject(False);
}

void frmButtonWizardPage2::cmdBack_Click() {
  EndQuietly([this] {
    Module().bWizardPageChanging = True;
    Unload();
  });
}

void frmButtonWizardPage2::cmdCancel_Click() {
  EndQuietly([this] {
    RestoreDefinition();
    Unload();
  });
}

}  // namespace plexel

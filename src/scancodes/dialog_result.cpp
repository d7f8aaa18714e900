#include "scancodes/dialog_result.h"

#include <string>

#include "element/ctlPlexelBaseElement.h"
#include "element/defined_marker.h"
#include "scancodes/code_type.h"
#include "scancodes/definition_text.h"
#include "scancodes/dialog_access.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

/// A body with a bracket comes from a definition that the wizard could not take apart; the element keeps its text then.
bool HoldsBracket(const std::string& body) { return body.find('[') != std::string::npos; }

void WriteAllLayers(const std::string& press, const std::string& release) {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    CurrentElement().PressKeyDefLayer(layer, press);
    CurrentElement().ReleaseKeyDefLayer(layer, release);
  }
}

void WriteAllPressLayers(const std::string& press) {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) CurrentElement().PressKeyDefLayer(layer, press);
}

void ClearDefinitions() {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) CurrentElement().ReleaseKeyDefLayer(layer, "");
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) CurrentElement().PressKeyDefLayer(layer, "");
}

}  // namespace

void ApplyDialogResult(std::int32_t lngTarget) {
  EndQuietly([&] {
    if (lngTarget == TargetConfigurationDialog) {
      ApplyConfigurationDialog();
    } else if (lngTarget == TargetWizard) {
      ApplyWizardPages();
    }
    UpdateDefinedMarker();
  });
}

void ApplyConfigurationDialog() {
  EndQuietly([] {
    CurrentElement().ButtonNotes(OpenConfigurationDialogAccess().NotesBox().Text());
    switch (CurrentElement().ElementType()) {
      case Led:
        ReadLedCombosIntoElement();
        ClearDefinitions();
        break;
      case Oval:
      case Rect:
        ReadGridIntoElement();
        break;
      case OvalLed:
      case RectLed:
        ReadLedCombosIntoElement();
        ReadGridIntoElement();
        break;
      case Key:
      default:
        break;
    }
  });
}

void ReadGridIntoElement() {
  Grid& grid = OpenConfigurationDialogAccess().ScanCodeGrid();
  grid.Col(1);
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    grid.Row(layer);
    CurrentElement().PressKeyDefLayer(layer, grid.Text());
  }
  grid.Col(2);
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    grid.Row(layer);
    CurrentElement().ReleaseKeyDefLayer(layer, grid.Text());
  }
}

void ReadLedCombosIntoElement() {
  ConfigurationDialogAccess& dialog = OpenConfigurationDialogAccess();
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    CurrentElement().LEDTypeLayer(layer, LedTextToType(dialog.LedTypeBox(layer - 1).Text()));
  }
}

void ApplyWizardPages() {
  EndQuietly([] {
    WizardPageAccess& page = OpenWizardPageAccess();
    if (page.KeyTypeOption(NormalKey).Value()) {
      ApplyWizardNormalKey();
    } else if (page.KeyTypeOption(TipKey).Value()) {
      ApplyWizardTipKey();
    } else if (page.KeyTypeOption(IPCFunction).Value()) {
      ApplyWizardIPCFunction();
    } else {
      ApplyWizardWindowsShortCut();
    }
  });
}

void ApplyWizardNormalKey() {
  EndQuietly([] {
    const std::string body = OpenWizardPageAccess().ScanCodeBox().Text();
    if (body.empty()) {
      WriteAllPressLayers("");
    } else if (!HoldsBracket(body)) {
      WriteAllPressLayers(DefinitionGroup(body, MakeAndBreak));
    }
  });
}

void ApplyWizardTipKey() {
  EndQuietly([] {
    const std::string body = OpenWizardPageAccess().ScanCodeBox().Text();
    if (body.empty()) {
      WriteAllLayers("", "");
    } else if (!HoldsBracket(body)) {
      WriteAllLayers(DefinitionGroup(body, MakeOnly), DefinitionGroup(body, BreakOnly));
    }
  });
}

void ApplyWizardIPCFunction() {
  EndQuietly([] {
    const std::string body = OpenWizardPageAccess().IPCFunctionBox().Text();
    if (!HoldsBracket(body)) WriteAllLayers(DefinitionGroup(body, MakeAndBreak), "");
  });
}

void ApplyWizardWindowsShortCut() {
  EndQuietly([] {
    const std::string body = RoundBrackets(OpenWizardPageAccess().WindowsShortCutBox().Text());
    ctlPlexelBaseElement& element = CurrentElement();
    element.PressKeyDefLayer1(DefinitionGroup(body, MakeOnly));
    element.ReleaseKeyDefLayer1(DefinitionGroup(body, BreakOnly));
    for (std::int32_t layer = 2; layer <= LayerCount; ++layer) {
      element.PressKeyDefLayer(layer, element.PressKeyDefLayer1());
      element.ReleaseKeyDefLayer(layer, element.ReleaseKeyDefLayer1());
    }
  });
}

}  // namespace plexel

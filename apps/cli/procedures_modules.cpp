#include "cli/procedures.h"

#include <array>

#include "element/defined_marker.h"
#include "element/element_access.h"
#include "scancodes/capture.h"
#include "scancodes/code_type.h"
#include "scancodes/definition_text.h"
#include "scancodes/dialog_result.h"
#include "scancodes/element_codes.h"
#include "scancodes/input_focus.h"
#include "scancodes/key_names.h"
#include "scancodes/key_table.h"
#include "scancodes/key_translation.h"
#include "scancodes/keypad_codes.h"
#include "scancodes/named_sequences.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

void AskDefinitionEmpty(Workbench& bench, Arguments&, Json& answer) {
  answer["result"] = BooleanToJson(ElementAccess::IsDefinitionEmpty(*bench.Selected()));
}

constexpr std::array procedures = {
    // services
    Plain<&GetText>("GetText"), Plain<&GetOption>("GetOption"), Plain<&GetParameter>("GetParameter"),
    Plain<&GetWindowPosition>("GetWindowPosition"), Plain<&GetBasePath>("GetBasePath"),
    Plain<&GetLanguageName>("GetLanguageName"), Plain<&DetermineOsFamily>("DetermineOsFamily"),
    Plain<&GetScreenLogPixels>("GetScreenLogPixels"), Plain<&GetDpiScaleFactor>("GetDpiScaleFactor"),
    Plain<&ShowHelpTopic>("ShowHelpTopic"), Plain<&LedTextToType>("LedTextToType"),
    Plain<&LedTypeToText>("LedTypeToText"),
    // keys and capture
    Plain<&SampleModifierKeys>("SampleModifierKeys"), Plain<&GetKeyName>("GetKeyName"),
    Plain<&SetDirectInput>("SetDirectInput"), Plain<&TrackKeyEvent>("TrackKeyEvent"),
    Plain<&AllKeysReleased>("AllKeysReleased"), Plain<&RemoveAltGrControl>("RemoveAltGrControl"),
    Plain<&ParkInputFocus>("ParkInputFocus"), Plain<&ScanCodeOf>("ScanCodeOf"),
    Plain<&ExtendedFlagOf>("ExtendedFlagOf"),
    // definition text
    Plain<&RemoveFirstDefinitionText>("RemoveFirstDefinitionText"),
    Plain<&RemoveLastDefinitionText>("RemoveLastDefinitionText"), Plain<&StripDefinitionMarks>("StripDefinitionMarks"),
    Plain<&AppendSpecialDefinition>("AppendSpecialDefinition"), Plain<&UpdateGridRowMarks>("UpdateGridRowMarks"),
    Plain<&ResetGridCellColours>("ResetGridCellColours"), Plain<&ApplyDialogResult>("ApplyDialogResult"),
    Plain<&ApplyConfigurationDialog>("ApplyConfigurationDialog"), Plain<&ReadGridIntoElement>("ReadGridIntoElement"),
    Plain<&ReadLedCombosIntoElement>("ReadLedCombosIntoElement"), Plain<&ApplyWizardPages>("ApplyWizardPages"),
    Plain<&ApplyWizardNormalKey>("ApplyWizardNormalKey"), Plain<&ApplyWizardTipKey>("ApplyWizardTipKey"),
    Plain<&ApplyWizardIPCFunction>("ApplyWizardIPCFunction"),
    Plain<&ApplyWizardWindowsShortCut>("ApplyWizardWindowsShortCut"),
    Plain<&UpdateDefinedMarker>("UpdateDefinedMarker"), Procedure{"IsDefinitionEmpty", 0, 0, AskDefinitionEmpty},
    // codes
    Plain<&GetSelectedCodeType>("GetSelectedCodeType"), Plain<&DeleteFirstCodeGroup>("DeleteFirstCodeGroup"),
    Plain<&DeleteLastCodeGroup>("DeleteLastCodeGroup"), Plain<&DigitToKeypadCode>("DigitToKeypadCode"),
    Plain<&ConvertHex>("ConvertHex")};

}  // namespace

std::span<const Procedure> ModuleProcedures() { return procedures; }

}  // namespace plexel

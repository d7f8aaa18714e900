#include "configdialog/frmConfigurationDialog.h"

#include <cstddef>
#include <string>

#include "forms/form_directory.h"
#include "scancodes/code_type.h"
#include "scancodes/definition_text.h"
#include "scancodes/dialog_access.h"
#include "scancodes/element_codes.h"
#include "scancodes/key_translation.h"
#include "scancodes/keypad_codes.h"
#include "services/dialogs.h"
#include "services/failure_styles.h"
#include "services/module_state.h"

namespace plexel {

namespace {

constexpr std::uint16_t noCharacter = 65535;
constexpr std::int32_t leftAlt = 0x11, breakPrefix = 0xF0;

/// Left Alt held while the digits are typed on the number pad.
CodeSequence KeypadEntry(const std::string& digits) {
  CodeSequence sequence;
  sequence.Append(leftAlt);
  for (const char digit : digits) {
    const std::int32_t code = DigitToKeypadCode(std::string_view(&digit, 1));
    sequence.Append(code);
    sequence.Append(breakPrefix);
    sequence.Append(code);
  }
  sequence.Append(breakPrefix);
  sequence.Append(leftAlt);
  return sequence;
}

}  // namespace

void frmConfigurationDialog::MNU_POPUP_ASCII_Click() {
  EndQuietly([this] {
    FormDirectory::Instance().ShowModal(dialogs::frmASCIICharacterTable, this);
    const std::uint16_t character = Module().intAsciiResult;
    if (character == noCharacter) return;
    const std::string digits = std::to_string(character);
    if (StoreScanCodes({KeypadEntry(digits), {}}, MakeOnly, 0, TargetConfigurationDialog) != 0) return;
    msgScanCodes.Text(msgScanCodes.Text() + DefinitionGroup("ASCII:" + digits, MakeAndBreak));
  });
}

void frmConfigurationDialog::MNU_SPECIALKEY_Click() {
  EndQuietly([this] { FormDirectory::Instance().ShowModal(dialogs::frmSpecialIPCKey, this); });
}

void frmConfigurationDialog::MNU_POPUP_WINDOWSKEY_Click() {
  EndQuietly([this] { FormDirectory::Instance().ShowModal(dialogs::frmSpecialWindowsKey, this); });
}

void frmConfigurationDialog::MNU_POPUP_NONSTANDARDCODE_Click() {
  EndQuietly([this] { FormDirectory::Instance().ShowModal(dialogs::frmNonStandardScancodes, this); });
}

void frmConfigurationDialog::MNU_POPUP_COPY_Click() {
  std::int32_t ignored = 0;
  CopyGridCell(ignored);
}

void frmConfigurationDialog::MNU_POPUP_PASTE_Click() {
  std::int32_t ignored = 0;
  PasteGridCell(ignored);
}

}  // namespace plexel

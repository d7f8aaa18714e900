#include "scancodes/frmNonStandardScancodes.h"

#include "scancodes/code_type.h"
#include "scancodes/definition_text.h"
#include "scancodes/dialog_access.h"
#include "scancodes/element_codes.h"
#include "scancodes/key_translation.h"
#include "scancodes/named_sequences.h"
#include "services/failure_styles.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

void StoreSequence(const NamedSequences& sequences, std::int32_t number, const std::string& name) {
  if (StoreScanCodes(sequences.ReadCodes(number), FromDialog, 1, TargetConfigurationDialog) == 0) {
    AppendSpecialDefinition(name);
  }
}

}  // namespace

void frmNonStandardScancodes::OnLoad() {
  EndQuietly([this] {
    TranslateForm(*this, "@");
    const NamedSequences sequences;
    std::int32_t number = 1;
    for (auto name = sequences.NameOf(number); name; name = sequences.NameOf(++number)) list.AddItem(*std::move(name));
    ShowFirstEntry();
  });
}

void frmNonStandardScancodes::cmdOK_Click() {
  EndQuietly([this] {
    const NamedSequences sequences;
    // Without an entry the list is empty, and an empty group is stored. An entry that has left the file stores nothing.
    if (const auto number = sequences.NumberOf(list.Text())) StoreSequence(sequences, *number, list.Text());
    Unload();
  });
}

}  // namespace plexel

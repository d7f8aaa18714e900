#include "scancodes/code_type.h"

#include "scancodes/dialog_access.h"

namespace plexel {

std::int32_t GetSelectedCodeType() {
  ConfigurationDialogAccess& dialog = OpenConfigurationDialogAccess();
  if (dialog.CodeTypeOption(MakeAndBreak).Value()) return MakeAndBreak;
  return dialog.CodeTypeOption(MakeOnly).Value() ? MakeOnly : BreakOnly;
}

}  // namespace plexel

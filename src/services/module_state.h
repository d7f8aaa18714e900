#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/keyboard.h"
#include "services/element_types.h"

namespace plexel {

class ctlPlexelBaseElement;

/// The state that all elements and dialogs share, once for the user-interface thread.
struct ModuleState {
  // modConstants
  std::int32_t lngDialogLeft = 0, lngDialogTop = 0;         ///< twips; where the wizard pages open
  Boolean bDirectInputActive = False;                       ///< capture as the dialogs see it
  std::shared_ptr<ctlPlexelBaseElement> ctlCurrentElement;  ///< the last element that a dialog worked for
  std::uint16_t intAsciiResult = 0;                         ///< chosen character code, 65535 for none
  std::int32_t lngOsFamily = 0;                             ///< 0 for platform id 1, else 1
  Boolean bWizardPageChanging = False;
  udtTactisBaseElement_ScanCodeInfo udtSavedScanCodeInfo;  ///< the way back on Cancel
  std::int32_t lngMaxScanCodes = 0;                        ///< code bytes of one layer
  udtClipboard udtScanCodeClipboard;

  // modFunctions
  static constexpr std::int32_t KeySlots = 51;
  /// One slot of the key table: virtual key, down flag, scan code, extended flag.
  using KeySlot = std::array<std::int32_t, 4>;
  std::int32_t lngInputTarget = 0;  ///< 0 configuration dialog, 2 wizard
  std::int32_t lngKeyboardHook = 0, lngLowLevelHook = 0;
  std::vector<std::int32_t> installedHooks;  ///< handles of all hooks not yet removed, those above among them
  std::array<KeySlot, KeySlots> lngPressedKeys{};
  std::int32_t lngPressedKeyCount = 0;
  LowLevelKey udtLowLevelKey;

  // modPlexelGlobalScancodeFunctions
  Boolean bShiftDown = False, bNumLockDown = False, bAltDown = False, bCtrlDown = False;

  /// The application's help file, which serves F1; empty while capture runs.
  std::string HelpFile;
};

ModuleState& Module();

/// The element behind ctlCurrentElement; Failure (ObjectNotSet) when there is none.
ctlPlexelBaseElement& CurrentElement();

}  // namespace plexel

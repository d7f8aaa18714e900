#include "scancodes/element_codes.h"

#include "element/ctlPlexelBaseElement.h"
#include "platform/failure.h"
#include "scancodes/code_buffer.h"
#include "scancodes/code_type.h"
#include "scancodes/dialog_access.h"
#include "services/module_state.h"

namespace plexel {

namespace {

using Buffer = udtTactisBaseElement_TACTIS_SCANCODE;
using Info = udtTactisBaseElement_ScanCodeInfo;

/// The code types of press and release buffer by key type of the wizard.
struct WizardGroups {
  static constexpr std::int32_t Empty = -1;  ///< no code type: appends nothing
  enumWizardOptions keyType;
  std::int32_t press, release;
};
constexpr WizardGroups wizardGroups[] = {{NormalKey, MakeAndBreak, WizardGroups::Empty},
                                         {TipKey, MakeOnly, BreakOnly},
                                         {IPCFunction, MakeAndBreak, WizardGroups::Empty},
                                         {WindowsShortCut, MakeOnly, BreakOnly}};

std::int32_t LengthOf(const KeyCodes& codes) {
  const std::int64_t sum = std::int64_t{codes.make.length} + codes.breaking.length;
  if (sum != static_cast<std::int32_t>(sum)) throw Failure(FailureKind::Overflow, "the lengths have no sum");
  return static_cast<std::int32_t>(sum);
}

/// False when the layer lacks room.
bool StoreInGridCell(Info& info, const KeyCodes& codes, std::int32_t codeType, std::int32_t unused) {
  const Grid& grid = OpenConfigurationDialogAccess().ScanCodeGrid();
  if (!HasRoomForCodes(grid.Row(), info, LengthOf(codes))) return false;
  if (Buffer* code = CellBuffer(info, grid.Row(), grid.Col())) AppendCodeGroup(*code, codes, codeType, unused);
  return true;
}

void StoreInAllLayers(Info& info, const KeyCodes& codes, std::int32_t unused) {
  ZeroAllBuffers(info);
  WizardPageAccess& page = OpenWizardPageAccess();
  for (const WizardGroups& groups : wizardGroups) {
    if (!page.KeyTypeOption(groups.keyType).Value()) continue;
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      AppendCodeGroup(*PressBuffer(info, layer), codes, groups.press, unused);
      AppendCodeGroup(*ReleaseBuffer(info, layer), codes, groups.release, unused);
    }
    return;
  }
}

template <typename Change>
void ChangeGridCellBuffer(Change change) {
  Info info = CurrentElement().TactisBaseElementScanCodeBuffer();
  const Grid& grid = OpenConfigurationDialogAccess().ScanCodeGrid();
  Buffer* code = CellBuffer(info, grid.Row(), grid.Col());
  if (code == nullptr) return;
  change(*code);
  CurrentElement().TactisBaseElementScanCodeBuffer(info);
}

}  // namespace

bool HasRoomForCodes(std::int32_t lngLayer, const Info& udtBuffer, std::int32_t lngNewCodes) {
  const Buffer* press = PressBuffer(udtBuffer, lngLayer);
  const Buffer* release = ReleaseBuffer(udtBuffer, lngLayer);
  if (press == nullptr) return false;  // the layer has neither
  const std::int64_t total =
      std::int64_t{press->NextValue} + release->NextValue + lngNewCodes - CountGroupEnds(lngLayer, udtBuffer);
  return total < Module().lngMaxScanCodes;
}

std::int32_t StoreScanCodes(const KeyCodes& codes, std::int32_t lngCodeType, std::int32_t lngUnused,
                            std::int32_t lngTarget) {
  Info info = CurrentElement().TactisBaseElementScanCodeBuffer();
  bool stored = true;
  if (lngTarget == TargetConfigurationDialog) {
    stored = StoreInGridCell(info, codes, lngCodeType, lngUnused);
  } else if (lngTarget == TargetWizard) {
    StoreInAllLayers(info, codes, lngUnused);
  }
  CurrentElement().TactisBaseElementScanCodeBuffer(info);
  return stored ? 0 : 1;
}

void DeleteFirstCodeGroup() {
  ChangeGridCellBuffer([](Buffer& code) { RemoveFirstCodeGroup(code); });
}

void DeleteLastCodeGroup() { ChangeGridCellBuffer(RemoveLastCodeGroup); }

}  // namespace plexel

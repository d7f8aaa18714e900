#include "scancodes/element_codes.h"

#include "element/ctlPlexelBaseElement.h"
#include "platform/failure.h"
#include "scancodes/code_buffer.h"
#include "scancodes/code_type.h"
#include "scancodes/dialog_access.h"
#include "scancodes/key_translation.h"
#include "services/module_state.h"

namespace plexel {

namespace {

using Buffer = udtTactisBaseElement_TACTIS_SCANCODE;
using Info = udtTactisBaseElement_ScanCodeInfo;

/// The code types of press and release buffer by key type of the wizard.
struct WizardGroups {
  static constexpr std::int32_t Empty = -1;
  enumWizardOptions keyType;
  std::int32_t press, release;
};
constexpr WizardGroups wizardGroups[] = {{NormalKey, MakeAndBreak, WizardGroups::Empty},
                                         {TipKey, MakeOnly, BreakOnly},
                                         {IPCFunction, MakeAndBreak, WizardGroups::Empty},
                                         {WindowsShortCut, MakeOnly, BreakOnly}};

/// A group on its way into the element.
struct Group {
  const CodeArray& make;
  std::int32_t makeLength;
  const CodeArray& breaking;
  std::int32_t breakLength;
  std::int32_t unused;

  std::int32_t Length() const {
    const std::int64_t sum = std::int64_t{makeLength} + breakLength;
    if (sum != static_cast<std::int32_t>(sum)) throw Failure(FailureKind::Overflow, "the lengths have no sum");
    return static_cast<std::int32_t>(sum);
  }
  void AppendTo(Buffer& code, std::int32_t codeType) const {
    AppendCodeGroup(code, make, makeLength, breaking, breakLength, codeType, unused);
  }
};

/// False when the layer lacks room.
bool StoreInGridCell(Info& info, const Group& group, std::int32_t codeType) {
  const Grid& grid = OpenConfigurationDialogAccess().ScanCodeGrid();
  if (!HasRoomForCodes(grid.Row(), info, group.Length())) return false;
  if (Buffer* code = CellBuffer(info, grid.Row(), grid.Col())) group.AppendTo(*code, codeType);
  return true;
}

void StoreInAllLayers(Info& info, const Group& group) {
  ZeroAllBuffers(info);
  WizardPageAccess& page = OpenWizardPageAccess();
  for (const WizardGroups& groups : wizardGroups) {
    if (!page.KeyTypeOption(groups.keyType).Value()) continue;
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      group.AppendTo(*PressBuffer(info, layer), groups.press);
      if (groups.release != WizardGroups::Empty) group.AppendTo(*ReleaseBuffer(info, layer), groups.release);
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
  if (press == nullptr || release == nullptr) return false;
  const std::int64_t total =
      std::int64_t{press->NextValue} + release->NextValue + lngNewCodes - CountGroupEnds(lngLayer, udtBuffer);
  return total < Module().lngMaxScanCodes;
}

std::int32_t StoreScanCodes(const CodeArray& lngMake, std::int32_t lngMakeLength, const CodeArray& lngBreak,
                            std::int32_t lngBreakLength, std::int32_t lngCodeType, std::int32_t lngUnused,
                            std::int32_t lngTarget) {
  const Group group{lngMake, lngMakeLength, lngBreak, lngBreakLength, lngUnused};
  Info info = CurrentElement().TactisBaseElementScanCodeBuffer();
  bool stored = true;
  if (lngTarget == TargetConfigurationDialog) {
    stored = StoreInGridCell(info, group, lngCodeType);
  } else if (lngTarget == TargetWizard) {
    StoreInAllLayers(info, group);
  }
  CurrentElement().TactisBaseElementScanCodeBuffer(info);
  return stored ? 0 : 1;
}

void DeleteFirstCodeGroup() {
  ChangeGridCellBuffer([](Buffer& code) { RemoveFirstCodeGroup(code); });
}

void DeleteLastCodeGroup() { ChangeGridCellBuffer(RemoveLastCodeGroup); }

}  // namespace plexel

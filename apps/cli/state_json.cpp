#include "cli/state_json.h"

#include "cli/record_json.h"
#include "cli/values_json.h"
#include "element/ctlPlexelBaseElement.h"

namespace plexel {

namespace {

Json ToJson(const LowLevelKey& key) {
  return Json::array({key.virtualKey, key.scanCode, key.flags, key.time, key.extraInfo});
}

Json PressedKeysToJson(const ModuleState& state) {
  Json rows = Json::array();
  for (std::int32_t slot = 0; slot <= state.lngPressedKeyCount; ++slot) {
    rows.push_back(state.lngPressedKeys.at(static_cast<std::size_t>(slot)));
  }
  return rows;
}

}  // namespace

Json ToJson(const ModuleState& state) {
  Json clipboard;
  clipboard["Valid"] = BooleanToJson(state.udtScanCodeClipboard.Valid);
  clipboard["scanCode"] = ToJson(state.udtScanCodeClipboard.scanCode);
  clipboard["VisibleString"] = state.udtScanCodeClipboard.VisibleString;

  Json json;
  json["ctlCurrentElement"] = state.ctlCurrentElement ? Json(state.ctlCurrentElement->Name()) : Json();
  json["lngMaxScanCodes"] = state.lngMaxScanCodes;
  json["lngDialogLeft"] = state.lngDialogLeft;
  json["lngDialogTop"] = state.lngDialogTop;
  json["bDirectInputActive"] = BooleanToJson(state.bDirectInputActive);
  json["intAsciiResult"] = state.intAsciiResult;
  json["lngOsFamily"] = state.lngOsFamily;
  json["bWizardPageChanging"] = BooleanToJson(state.bWizardPageChanging);
  json["udtSavedScanCodeInfo"] = ToJson(state.udtSavedScanCodeInfo);
  json["udtScanCodeClipboard"] = std::move(clipboard);
  json["lngInputTarget"] = state.lngInputTarget;
  json["lngKeyboardHook"] = state.lngKeyboardHook;
  json["lngLowLevelHook"] = state.lngLowLevelHook;
  json["lngPressedKeys"] = PressedKeysToJson(state);
  json["lngPressedKeyCount"] = state.lngPressedKeyCount;
  json["udtLowLevelKey"] = ToJson(state.udtLowLevelKey);
  json["bShiftDown"] = BooleanToJson(state.bShiftDown);
  json["bNumLockDown"] = BooleanToJson(state.bNumLockDown);
  json["bAltDown"] = BooleanToJson(state.bAltDown);
  json["bCtrlDown"] = BooleanToJson(state.bCtrlDown);
  json["HelpFile"] = state.HelpFile;
  return json;
}

}  // namespace plexel

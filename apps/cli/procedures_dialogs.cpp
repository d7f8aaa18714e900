#include "cli/procedures.h"

#include <algorithm>
#include <array>
#include <memory>
#include <ranges>

#include "cli/command_error.h"
#include "cli/record_json.h"
#include "configdialog/frmConfigurationDialog.h"
#include "element/ctlPlexelBaseElement.h"
#include "services/dialogs.h"
#include "specialdialogs/frmASCIICharacterTable.h"
#include "specialdialogs/frmSpecialIPCKey.h"
#include "specialdialogs/frmSpecialWindowsKey.h"
#include "wizard/frmButtonWizardPage1.h"
#include "wizard/frmButtonWizardPage2.h"
#include "wizard/frmButtonWizardPage3.h"

namespace plexel {

namespace {

using Dialog = frmConfigurationDialog;
using Page1 = frmButtonWizardPage1;
using Page2 = frmButtonWizardPage2;
using Page3 = frmButtonWizardPage3;

template <auto method>
using OwnerOf = typename call::Parts<decltype(method)>::Owner;

template <auto method>
bool RunIfOwner(Form& form, Arguments& arguments, Json& answer) {
  auto* dialog = dynamic_cast<OwnerOf<method>*>(&form);
  if (dialog != nullptr) call::OnObject<method>(*dialog, arguments, answer);
  return dialog != nullptr;
}

/// Runs a procedure that one or more dialogs have on the topmost dialog that has it.
template <auto... methods>
void OnOpen(Workbench& bench, Arguments& arguments, Json& answer) {
  constexpr std::array run = {&RunIfOwner<methods>...};
  for (Form* form : std::views::reverse(std::vector<Form*>(bench.platform.Modal().Shown()))) {
    if (std::ranges::any_of(run, [&](const auto& one) { return one(*form, arguments, answer); })) return;
  }
  throw CommandError("no dialog that has this procedure is open");
}

template <auto first, auto... others>
consteval Procedure OfOpen(std::string_view name) {
  constexpr std::size_t count = call::Parts<decltype(first)>::Count;
  return {name, count, count, OnOpen<first, others...>};
}

/// The open dialog of a class. One of its own where none is open, for procedures that touch nothing of their dialog.
template <typename Form>
class OpenOrOwn {
 public:
  explicit OpenOrOwn(Workbench& bench) {
    for (auto* form : bench.platform.Modal().Shown()) {
      if (auto* open = dynamic_cast<Form*>(form)) dialog_ = open;
    }
    if (dialog_ != nullptr) return;
    own_ = std::make_unique<Form>();
    dialog_ = own_.get();
  }
  Form* operator->() { return dialog_; }
  Form& operator*() { return *dialog_; }

 private:
  std::unique_ptr<Form> own_;
  Form* dialog_ = nullptr;
};

template <auto method>
consteval Procedure OfAny(std::string_view name) {
  constexpr std::size_t count = call::Parts<decltype(method)>::Count;
  return {name, count, count, [](Workbench& bench, Arguments& arguments, Json& answer) {
            OpenOrOwn<OwnerOf<method>> dialog(bench);
            call::OnObject<method>(*dialog, arguments, answer);
          }};
}

udtTactisBaseElement_ScanCodeInfo RecordOf(Workbench& bench) {
  return bench.Selected()->TactisBaseElementScanCodeBuffer();
}

template <bool (Dialog::*test)(std::int32_t, const udtTactisBaseElement_ScanCodeInfo&, std::int32_t)>
void AskPaste(Workbench& bench, Arguments& arguments, Json& answer) {
  const std::int32_t layer = arguments.Int32();
  const std::int32_t length = arguments.Int32();
  answer["result"] = BooleanToJson(((*OpenOrOwn<Dialog>(bench)).*test)(layer, RecordOf(bench), length));
}

template <std::int32_t (Dialog::*count)(std::int32_t, const udtTactisBaseElement_ScanCodeInfo&)>
void CountEnds(Workbench& bench, Arguments& arguments, Json& answer) {
  answer["result"] = ((*OpenOrOwn<Dialog>(bench)).*count)(arguments.Int32(), RecordOf(bench));
}

void CountBufferEnds(Workbench& bench, Arguments& arguments, Json& answer) {
  udtTactisBaseElement_TACTIS_SCANCODE code;
  ChangeFields(code, arguments.Object());
  answer["result"] = OpenOrOwn<Dialog>(bench)->CountCodeGroupEnds(code);
}

void ListText(Workbench& bench, Arguments& arguments, Json& answer) {
  std::string text;
  OpenOrOwn<Dialog>(bench)->LedTypeToListText(static_cast<enumLedType>(arguments.Int32()), text);
  answer["result"] = text;
}

void StoreInAllLayers(Workbench& bench, Arguments& arguments, Json& answer) {
  const KeyCodes codes = arguments.Codes();
  answer["result"] = OpenOrOwn<frmSpecialIPCKey>(bench)->StoreInAllLayers(codes);
}

/// A procedure of the configuration dialog that gives its result through its argument.
template <void (Dialog::*method)(std::int32_t&)>
void WithResult(Workbench& bench, Arguments&, Json& answer) {
  for (Form* form : bench.platform.Modal().Shown()) {
    auto* dialog = dynamic_cast<Dialog*>(form);
    if (dialog == nullptr) continue;
    std::int32_t result = 0;
    (dialog->*method)(result);
    answer["result"] = result;
    return;
  }
  throw CommandError(std::string(dialogs::frmConfigurationDialog) + " is not open");
}

constexpr std::array procedures = {
    // the configuration dialog
    OfOpen<&Dialog::RestoreDefinition, &Page1::RestoreDefinition, &Page2::RestoreDefinition>("RestoreDefinition"),
    OfOpen<&Dialog::LoadDialogPosition>("LoadDialogPosition"),
    OfOpen<&Dialog::SaveDialogPosition, &WizardPage::SaveDialogPosition>("SaveDialogPosition"),
    OfOpen<&Dialog::InitScanCodeGrid>("InitScanCodeGrid"), OfOpen<&Dialog::LoadGridFromElement>("LoadGridFromElement"),
    Procedure{"CopyGridCell", 0, 0, WithResult<&Dialog::CopyGridCell>},
    Procedure{"PasteGridCell", 0, 0, WithResult<&Dialog::PasteGridCell>},
    Procedure{"CountPressGroupEnds", 1, 1, CountEnds<&Dialog::CountPressGroupEnds>},
    Procedure{"CountReleaseGroupEnds", 1, 1, CountEnds<&Dialog::CountReleaseGroupEnds>},
    Procedure{"CountCodeGroupEnds", 1, 1, CountBufferEnds},
    Procedure{"PressPasteFits", 2, 2, AskPaste<&Dialog::PressPasteFits>},
    Procedure{"ReleasePasteFits", 2, 2, AskPaste<&Dialog::ReleasePasteFits>},
    OfOpen<&Dialog::AnyScanCodeDefined>("AnyScanCodeDefined"), OfOpen<&Dialog::ToggleKeyCapture>("ToggleKeyCapture"),
    OfOpen<&Dialog::EndKeyCapture>("EndKeyCapture"),
    OfOpen<&Dialog::PlaceFocusCatcher, &Page1::PlaceFocusCatcher>("PlaceFocusCatcher"),
    OfOpen<&Dialog::FillLedLists>("FillLedLists"), OfOpen<&Dialog::AddLedToLists>("AddLedToLists"),
    Procedure{"LedTypeToListText", 1, 1, ListText}, OfOpen<&Dialog::LoadLedSelections>("LoadLedSelections"),
    OfOpen<&Dialog::AnyLEDDefined>("AnyLEDDefined"),
    // the wizard
    OfOpen<&WizardPage::ScaleTitlePicture>("ScaleTitlePicture"), OfOpen<&Page3::LeaveWizard>("LeaveWizard"),
    OfOpen<&Page1::FillIPCFunctionList>("FillIPCFunctionList"),
    OfOpen<&Page1::FillWindowsShortCutList>("FillWindowsShortCutList"),
    OfOpen<&Page1::ToggleDirectInput>("ToggleDirectInput"), OfOpen<&Page2::FillLedFunctionList>("FillLedFunctionList"),
    // the dialogs of the popup menu
    OfOpen<&frmSpecialIPCKey::FillSpecialFunctionList>("FillSpecialFunctionList"),
    OfAny<&frmSpecialIPCKey::AddToAllLayers>("AddToAllLayers"), Procedure{"StoreInAllLayers", 0, 2, StoreInAllLayers},
    OfOpen<&frmSpecialWindowsKey::FillShortCutList>("FillShortCutList"),
    OfOpen<&frmASCIICharacterTable::ShowBigCharacter>("ShowBigCharacter")};

}  // namespace

std::span<const Procedure> DialogProcedures() { return procedures; }

}  // namespace plexel

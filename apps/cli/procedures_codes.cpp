#include "cli/procedures.h"

#include <array>

#include "cli/record_json.h"
#include "cli/values_json.h"
#include "element/ctlPlexelBaseElement.h"
#include "scancodes/code_buffer.h"
#include "scancodes/code_type.h"
#include "scancodes/element_codes.h"
#include "scancodes/key_translation.h"
#include "scancodes/special_functions.h"
#include "scancodes/windows_shortcuts.h"

namespace plexel {

namespace {

udtTactisBaseElement_TACTIS_SCANCODE TakeCode(Arguments& arguments) {
  udtTactisBaseElement_TACTIS_SCANCODE code;
  ChangeFields(code, arguments.Object());
  return code;
}

udtTactisBaseElement_ScanCodeInfo RecordOf(Workbench& bench) {
  return bench.Selected()->TactisBaseElementScanCodeBuffer();
}

void Translate(Workbench&, Arguments& arguments, Json& answer) {
  const std::int32_t scanCode = arguments.Int32();
  const std::int32_t virtualKey = arguments.Int32();
  const std::int32_t extended = arguments.Int32();
  KeyCodes codes = arguments.Codes();
  TranslateScanCode(scanCode, virtualKey, extended, codes);
  AddCodes(answer, codes);
}

/// The sequences that a procedure gives for an index.
template <auto procedure>
void OfIndex(Workbench&, Arguments& arguments, Json& answer) {
  const std::int32_t index = arguments.Int32();
  KeyCodes codes = arguments.Codes();
  procedure(codes, index);
  AddCodes(answer, codes);
}

void Append(Workbench&, Arguments& arguments, Json& answer) {
  udtTactisBaseElement_TACTIS_SCANCODE code = TakeCode(arguments);
  const KeyCodes codes = arguments.Codes();
  AppendCodeGroup(code, codes, arguments.Int32(), 0);
  answer["code"] = ToJson(code);
}

void RemoveFirst(Workbench&, Arguments& arguments, Json& answer) {
  udtTactisBaseElement_TACTIS_SCANCODE code = TakeCode(arguments);
  const bool removed = RemoveFirstCodeGroup(code);
  answer["code"] = ToJson(code);
  answer["result"] = BooleanToJson(removed);
}

void RemoveLast(Workbench&, Arguments& arguments, Json& answer) {
  udtTactisBaseElement_TACTIS_SCANCODE code = TakeCode(arguments);
  RemoveLastCodeGroup(code);
  answer["code"] = ToJson(code);
}

void Store(Workbench&, Arguments& arguments, Json& answer) {
  const KeyCodes codes = arguments.Codes();
  const std::int32_t type = arguments.Int32();
  answer["result"] = StoreScanCodes(codes, type, 0, arguments.Int32());
}

void CountEnds(Workbench& bench, Arguments& arguments, Json& answer) {
  answer["result"] = CountGroupEnds(arguments.Int32(), RecordOf(bench));
}

void AskRoom(Workbench& bench, Arguments& arguments, Json& answer) {
  const std::int32_t layer = arguments.Int32();
  answer["result"] = BooleanToJson(HasRoomForCodes(layer, RecordOf(bench), arguments.Int32()));
}

constexpr auto procedures =
    std::to_array<Procedure>({{"TranslateScanCode", 3, 5, Translate},
                              {"GetSpecialFunctionCode", 1, 3, OfIndex<&GetSpecialFunctionCode>},
                              {"GetWindowsShortCutCodes", 1, 3, OfIndex<&GetWindowsShortCutCodes>},
                              {"AppendCodeGroup", 4, 4, Append},
                              {"RemoveFirstCodeGroup", 1, 1, RemoveFirst},
                              {"RemoveLastCodeGroup", 1, 1, RemoveLast},
                              {"StoreScanCodes", 4, 4, Store},
                              {"CountGroupEnds", 1, 1, CountEnds},
                              {"HasRoomForCodes", 2, 2, AskRoom}});

}  // namespace

std::span<const Procedure> CodeProcedures() { return procedures; }

}  // namespace plexel

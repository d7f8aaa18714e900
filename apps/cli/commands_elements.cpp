#include "cli/commands.h"

#include <algorithm>
#include <array>

#include "cli/bag_json.h"
#include "cli/call.h"
#include "cli/command_error.h"
#include "cli/record_json.h"
#include "cli/state_json.h"
#include "cli/values_json.h"
#include "element/element_access.h"
#include "element/property_table.h"
#include "files/text_lines.h"
#include "services/module_state.h"

namespace plexel {

namespace {

using Element = ctlPlexelBaseElement;

/// A method or an event of an element's surface, called by name.
struct Member {
  std::string_view name;
  std::size_t arguments;
  void (*run)(Element& element, Arguments& arguments, Json& answer);
};

template <auto method>
consteval Member Row(std::string_view name) {
  return {name, call::Parts<decltype(method)>::Count, call::OnObject<method>};
}

/// The record as the element's property gives it, with some fields changed.
udtTactisBaseElement_ScanCodeInfo ChangedRecord(Element& element, const Json& fields) {
  udtTactisBaseElement_ScanCodeInfo record = element.TactisBaseElementScanCodeBuffer();
  ChangeFields(record, fields);
  return record;
}

void DefineFrom(Element& element, Arguments& arguments, Json&) {
  element.SetTactisBaseElementDefinition(ChangedRecord(element, arguments.Object()));
}

void ReadPropertiesFrom(Element& element, Arguments& arguments, Json&) {
  element.UserControl_ReadProperties(ScriptBag(arguments.Object()));
}

void RaiseProjectModified(Element& element, Arguments&, Json&) { ElementAccess::RaiseProjectModified(element); }

void RaiseDirectInputStatusChanged(Element& element, Arguments& arguments, Json&) {
  ElementAccess::RaiseDirectInputStatusChanged(element, Boolean::Raw(arguments.Int16()));
}

void AskDefinitionEmpty(Element& element, Arguments&, Json& answer) {
  answer["result"] = BooleanToJson(ElementAccess::IsDefinitionEmpty(element));
}

constexpr auto methods = std::to_array<Member>({Row<&Element::OpenPropertiesDialog>("OpenPropertiesDialog"),
                                                Row<&Element::OpenConfigurationDialog>("OpenConfigurationDialog"),
                                                Row<&Element::UpdateFocus>("UpdateFocus"),
                                                Row<&Element::Refresh>("Refresh"),
                                                Row<&Element::ShowDefinedObject>("ShowDefinedObject"),
                                                {"SetTactisBaseElementDefinition", 1, DefineFrom},
                                                Row<&Element::CheckIfLedIsAlreadyDefined>("CheckIfLedIsAlreadyDefined"),
                                                {"RaiseProjectModified", 0, RaiseProjectModified},
                                                {"RaiseDirectInputStatusChanged", 1, RaiseDirectInputStatusChanged},
                                                {"IsDefinitionEmpty", 0, AskDefinitionEmpty}});

constexpr auto events = std::to_array<Member>({Row<&Element::UserControl_GotFocus>("UserControl_GotFocus"),
                                               Row<&Element::UserControl_LostFocus>("UserControl_LostFocus"),
                                               Row<&Element::UserControl_KeyPress>("UserControl_KeyPress"),
                                               Row<&Element::UserControl_MouseUp>("UserControl_MouseUp"),
                                               Row<&Element::UserControl_DblClick>("UserControl_DblClick"),
                                               {"UserControl_ReadProperties", 1, ReadPropertiesFrom},
                                               Row<&Element::UserControl_Terminate>("UserControl_Terminate")});

void RunMember(std::span<const Member> members, const char* kind, Workbench& bench, Arguments& arguments,
               Json& answer) {
  const Workbench::Element element = bench.Selected();
  const std::string name = arguments.Text();
  const auto member =
      std::find_if(members.begin(), members.end(), [&name](const Member& one) { return one.name == name; });
  if (member == members.end()) throw CommandError("an element has no " + std::string(kind) + ' ' + Excerpt(name));
  if (arguments.Left() != member->arguments) {
    throw CommandError(name + " takes " + std::to_string(member->arguments) + " arguments");
  }
  member->run(*element, arguments, answer);
}

void CallMethod(Workbench& bench, Arguments& arguments, Json& answer) {
  RunMember(methods, "method", bench, arguments, answer);
}

void RaiseEvent(Workbench& bench, Arguments& arguments, Json& answer) {
  RunMember(events, "event", bench, arguments, answer);
}

void NewElement(Workbench& bench, Arguments& arguments, Json&) {
  const std::string name = arguments.Text();
  bench.RequireNewName(name);
  bench.Add(bench.component.Create(name, bench.host));
}

void ReadElement(Workbench& bench, Arguments& arguments, Json&) {
  const std::string name = arguments.Text();
  bench.RequireNewName(name);
  bench.Add(bench.component.Read(name, bench.host, ScriptBag(arguments.Object())));
}

void UseElement(Workbench& bench, Arguments& arguments, Json&) { bench.Select(arguments.Text()); }

void DropElement(Workbench& bench, Arguments& arguments, Json& answer) {
  const std::string name = arguments.Text();
  const Workbench::Element element = bench.Find(name);
  element->UserControl_Terminate();
  answer["ElementType"] = static_cast<std::int32_t>(element->ElementType());
  element->Detach();
  bench.Remove(name);
}

void WriteElement(Workbench& bench, Arguments&, Json& answer) {
  MemoryBag bag;
  bench.Selected()->UserControl_WriteProperties(bag);
  answer["bag"] = ToJson(bag);
}

/// The owner is a form, or none.
Json OwnerOf(const Element& element) {
  const std::shared_ptr<HostObject> owner = element.ParentWindow();
  return owner == nullptr ? Json() : Json(owner->AsForm()->WindowName());
}

const PropertyRow& TakeProperty(Arguments& arguments) {
  const std::string name = arguments.Text();
  const PropertyRow* row = FindProperty(name);
  if (row == nullptr) throw CommandError("an element has no property " + Excerpt(name));
  return *row;
}

void GetProperty(Workbench& bench, Arguments& arguments, Json& answer) {
  const Workbench::Element element = bench.Selected();
  const PropertyRow& row = TakeProperty(arguments);
  if (row.type == PropertyType::Object) {
    answer["value"] = OwnerOf(*element);
  } else if (row.type == PropertyType::Record) {
    answer["value"] = ToJson(element->TactisBaseElementScanCodeBuffer());
  } else {
    answer["value"] = ToJson(Get(*element, row));
  }
}

/// The argument as a property of this type takes it. A plain word that is no number is left to the conversion.
PropertyData DataOf(Arguments& arguments, PropertyType type) {
  const Word& word = arguments.Take();
  if (!word.IsText()) throw CommandError("a JSON value is no value of a property");
  if (word.json || type == PropertyType::String) return word.text;
  std::int64_t whole = 0;
  const bool narrow = type == PropertyType::Int16 || type == PropertyType::Bool;
  const bool real = type == PropertyType::Double;
  if (!ParseInteger(word.text, real ? 64 : narrow ? 16 : 32, whole)) return word.text;
  if (real) return static_cast<double>(whole);
  return static_cast<std::int32_t>(whole);
}

void SetOwner(Workbench& bench, Element& element, const std::string& value) {
  if (value == "form") {
    element.ParentWindow(bench.hostForm);
  } else if (value == "object") {
    element.ParentWindow(std::make_shared<PlainHostObject>());
  } else if (value == "nothing") {
    element.ParentWindow(nullptr);
  } else {
    throw CommandError("ParentWindow takes form, object or nothing");
  }
}

void SetProperty(Workbench& bench, Arguments& arguments, Json&) {
  const Workbench::Element element = bench.Selected();
  const PropertyRow& row = TakeProperty(arguments);
  if (row.type == PropertyType::Object) {
    SetOwner(bench, *element, arguments.Text());
  } else if (row.type == PropertyType::Record) {
    element->TactisBaseElementScanCodeBuffer(ChangedRecord(*element, arguments.Object()));
  } else {
    Set(*element, row, DataOf(arguments, row.type));
  }
}

void ShowRecord(Workbench& bench, Arguments&, Json& answer) {
  answer["record"] = ToJson(bench.Selected()->TactisBaseElementScanCodeBuffer());
}

void PutRecord(Workbench& bench, Arguments& arguments, Json&) {
  const Workbench::Element element = bench.Selected();
  element->TactisBaseElementScanCodeBuffer(ChangedRecord(*element, arguments.Object()));
}

void Define(Workbench& bench, Arguments& arguments, Json& answer) {
  const Workbench::Element element = bench.Selected();
  DefineFrom(*element, arguments, answer);
}

void ShowSurface(Workbench& bench, Arguments&, Json& answer) {
  answer["surface"] = ToJson(bench.Selected()->SurfaceObjects());
}

void ShowState(Workbench&, Arguments&, Json& answer) { answer["state"] = ToJson(Module()); }

void ShowRegistry(Workbench& bench, Arguments&, Json& answer) {
  answer["registry"] = Json::object();
  for (const auto& [name, text] : bench.platform.UserRegistry().Stored()) answer["registry"][name] = text;
}

constexpr std::size_t Any = 16;

constexpr auto commands = std::to_array<Command>({{"element", "NAME", 1, 1, NewElement},
                                                  {"read", "NAME {\"SizeX\":20, ...}", 2, 2, ReadElement},
                                                  {"use", "NAME", 1, 1, UseElement},
                                                  {"drop", "NAME", 1, 1, DropElement},
                                                  {"write", "", 0, 0, WriteElement},
                                                  {"get", "NAME", 1, 1, GetProperty},
                                                  {"set", "NAME VALUE", 2, 2, SetProperty},
                                                  {"call", "NAME ARGS...", 1, Any, CallMethod},
                                                  {"raise", "NAME ARGS...", 1, Any, RaiseEvent},
                                                  {"record", "", 0, 0, ShowRecord},
                                                  {"put", "{FIELD: ...}", 1, 1, PutRecord},
                                                  {"define", "{FIELD: ...}", 1, 1, Define},
                                                  {"surface", "", 0, 0, ShowSurface},
                                                  {"state", "", 0, 0, ShowState},
                                                  {"registry", "", 0, 0, ShowRegistry}});

}  // namespace

std::span<const Command> ElementCommands() { return commands; }

}  // namespace plexel

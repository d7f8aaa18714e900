#include "cli/commands.h"

#include <algorithm>
#include <array>

#include "cli/command_error.h"
#include "cli/values_json.h"
#include "files/text_lines.h"
#include "forms/hand.h"

namespace plexel {

namespace {

Json BoxToJson(const MessageBox& box) {
  Json json;
  json["Name"] = "MessageBox";
  json["Caption"] = box.title;
  json["Prompt"] = box.prompt;
  json["Controls"] = box.Buttons();
  return json;
}

Json FormToJson(const Form& form) {
  Json json = ToJson(form.Describe());
  if (form.Focus() == nullptr) json["Focus"] = nullptr;
  return json;
}

/// The only control of a kind on the form in front.
template <typename Kind>
Kind& OnlyOne(Workbench& bench, const char* kind) {
  Form& form = bench.Front();
  for (Control* control : form.Controls()) {
    if (auto* wanted = dynamic_cast<Kind*>(control)) return *wanted;
  }
  throw CommandError(form.Name() + " has no " + kind);
}

void ShowForm(Workbench& bench, Arguments&, Json& answer) {
  const MessageBox* box = bench.Box();
  const Form* form = bench.platform.Modal().Topmost();
  answer["form"] = box != nullptr ? BoxToJson(*box) : form != nullptr ? FormToJson(*form) : Json();
}

void ShowControl(Workbench& bench, Arguments& arguments, Json& answer) {
  answer["control"] = ToJson(bench.FrontControl(arguments.Text()).Describe());
}

/// The place of a cell that stands behind the name of a grid.
struct Cell {
  std::int32_t row, col;
};

Cell TakeCell(Arguments& arguments) {
  const std::int32_t row = arguments.Int32();
  return {row, arguments.Int32()};
}

void Click(Workbench& bench, Arguments& arguments, Json&) {
  Control& control = bench.FrontControl(arguments.Text());
  if (!arguments.More()) return Hand(control.Owner()).Click(control);
  const Cell cell = TakeCell(arguments);
  Hand(control.Owner()).Click(As<Grid>(control, "grid"), cell.row, cell.col);
}

void DblClick(Workbench& bench, Arguments& arguments, Json&) {
  Control& control = bench.FrontControl(arguments.Text());
  if (!arguments.More()) return Hand(control.Owner()).DblClick(control);
  const Cell cell = TakeCell(arguments);
  Hand(control.Owner()).DblClick(As<Grid>(control, "grid"), cell.row, cell.col);
}

void MouseDown(Workbench& bench, Arguments& arguments, Json&) {
  Control& control = bench.FrontControl(arguments.Text());
  const std::int16_t button = arguments.Int16();
  const std::int16_t shift = arguments.Int16();
  const float x = arguments.Single();
  Hand(control.Owner()).MouseDown(control, button, shift, x, arguments.Single());
}

void Focus(Workbench& bench, Arguments& arguments, Json&) {
  Control& control = bench.FrontControl(arguments.Text());
  Hand(control.Owner()).Focus(control);
}

/// The place of a list entry: "#2", or the text of the first equal one.
int PlaceOf(const ComboBox& box, const Word& word) {
  std::int64_t place = 0;
  if (!word.json && word.text.starts_with('#') && ParseInteger(word.text.substr(1), 32, place)) {
    return static_cast<int>(place);
  }
  const auto entry = std::find(box.Items().begin(), box.Items().end(), word.text);
  if (!word.IsText() || entry == box.Items().end()) {
    throw CommandError("the list of " + box.FullName() + " has no entry \"" + Excerpt(word.text) + "\"");
  }
  return static_cast<int>(entry - box.Items().begin());
}

void Select(Workbench& bench, Arguments& arguments, Json&) {
  auto& box = As<ComboBox>(bench.FrontControl(arguments.Text()), "list");
  Hand(box.Owner()).Select(box, PlaceOf(box, arguments.Take()));
}

void Type(Workbench& bench, Arguments& arguments, Json&) {
  auto& box = As<TextBox>(bench.FrontControl(arguments.Text()), "text box");
  Hand(box.Owner()).Type(box, arguments.Text());
}

void SetCell(Workbench& bench, Arguments& arguments, Json&) {
  auto& grid = OnlyOne<Grid>(bench, "grid");
  const Cell cell = TakeCell(arguments);
  Hand(grid.Owner()).Cell(grid, cell.row, cell.col);
}

void ClickTab(Workbench& bench, Arguments& arguments, Json&) {
  auto& strip = OnlyOne<TabStrip>(bench, "tab strip");
  Hand(strip.Owner()).Tab(strip, arguments.Int32());
}

void PickMenu(Workbench& bench, Arguments& arguments, Json&) {
  auto& entry = As<MenuItem>(bench.FrontControl(arguments.Text()), "menu entry");
  Hand(entry.Owner()).Menu(entry);
}

void KeyDown(Workbench& bench, Arguments& arguments, Json& answer) {
  Form& form = bench.Front();
  const std::int16_t code = arguments.Int16();
  answer["KeyCode"] = Hand(form).KeyDown(code, arguments.Int16());
}

void KeyPress(Workbench& bench, Arguments& arguments, Json& answer) {
  answer["KeyAscii"] = Hand(bench.Front()).KeyPress(arguments.Int16());
}

void Close(Workbench& bench, Arguments&, Json&) {
  if (MessageBox* box = bench.Box()) return box->Dismiss();
  Hand(bench.Front()).Close();
}

void Answer(Workbench& bench, Arguments& arguments, Json&) {
  MessageBox* box = bench.Box();
  if (box == nullptr) throw CommandError("no message box is open");
  box->Answer(arguments.Text());
}

constexpr auto commands = std::to_array<Command>({{"form", "", 0, 0, ShowForm},
                                                  {"control", "NAME", 1, 1, ShowControl},
                                                  {"click", "NAME [ROW COL]", 1, 3, Click},
                                                  {"dblclick", "NAME [ROW COL]", 1, 3, DblClick},
                                                  {"mouse", "NAME BUTTON SHIFT X Y", 5, 5, MouseDown},
                                                  {"focus", "NAME", 1, 1, Focus},
                                                  {"select", "NAME TEXT | #PLACE", 2, 2, Select},
                                                  {"type", "NAME TEXT", 2, 2, Type},
                                                  {"cell", "ROW COL", 2, 2, SetCell},
                                                  {"tab", "N", 1, 1, ClickTab},
                                                  {"menu", "NAME", 1, 1, PickMenu},
                                                  {"keydown", "CODE SHIFT", 2, 2, KeyDown},
                                                  {"keypress", "CODE", 1, 1, KeyPress},
                                                  {"close", "", 0, 0, Close},
                                                  {"answer", "NAME", 1, 1, Answer}});

}  // namespace

std::span<const Command> FormCommands() { return commands; }

}  // namespace plexel

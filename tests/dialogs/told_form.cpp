#include "dialogs/told_form.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include "forms/caption.h"
#include "forms/controls.h"
#include "forms/grid.h"

namespace plexel::dialogs {

namespace {

/// A text in one line: line ends of either kind, and the sign that tells of them.
std::string OneLine(const std::string& text) {
  std::string line;
  for (const char character : text) {
    if (character == '\r') continue;
    if (character == '\\' || character == '"') line += '\\';
    line += character == '\n' ? std::string("\\n") : std::string(1, character);
  }
  return line;
}

/// Reads a description by the names of its properties.
class Reader {
 public:
  explicit Reader(Description description) : description_(std::move(description)) {}

  template <typename Type>
  Type Get(const char* name) const {
    for (const auto& [known, value] : description_) {
      if (known == name) return std::get<Type>(value);
    }
    return {};
  }
  std::string Text(const char* name) const { return Get<std::string>(name); }

 private:
  Description description_;
};

ToldControl ToldOf(const Control& control) {
  ToldControl told{control.FullName(), control.Shown(), control.Enabled(), {}};
  const Reader reader(control.Describe());
  const auto fact = [&](const char* name, std::string value) { told.facts.emplace_back(name, std::move(value)); };
  switch (control.Kind()) {
    case ControlKind::OptionButton:
      fact("set", YesOrNo(reader.Get<bool>("Value")));
      [[fallthrough]];
    case ControlKind::CommandButton:
    case ControlKind::Label:
    case ControlKind::Frame:
      fact("caption", Readable(reader.Text("Caption")));
      break;
    case ControlKind::ComboBox:
      fact("text", reader.Text("Text"));
      fact("entry", std::to_string(reader.Get<std::int32_t>("ListIndex")));
      fact("entries", Lines(reader.Get<std::vector<std::string>>("List")));
      break;
    case ControlKind::TextBox:
      fact("text", reader.Text("Text"));
      fact("locked", YesOrNo(reader.Get<bool>("Locked")));
      break;
    case ControlKind::TabStrip: {
      std::vector<std::string> tabs;
      for (const std::string& caption : reader.Get<std::vector<std::string>>("TabCaption")) {
        tabs.push_back(Readable(caption));
      }
      fact("tabs", Lines(tabs));
      fact("front", std::to_string(reader.Get<std::int32_t>("Tab")));
      break;
    }
    case ControlKind::Grid:
      fact("cell",
           std::to_string(reader.Get<std::int32_t>("Row")) + " " + std::to_string(reader.Get<std::int32_t>("Col")));
      fact("cells", CellsOf(reader.Get<GridCells>("Cells")));
      break;
    case ControlKind::StatusBar:
      fact("text", reader.Text("SimpleText"));
      break;
    default:
      break;
  }
  return told;
}

}  // namespace

bool IsTold(const Control& control) {
  return control.Kind() != ControlKind::Menu && control.Kind() != ControlKind::ImageList &&
         control.Kind() != ControlKind::Shape;
}

ToldForm ToldOfModel(const Form& form) {
  ToldForm told;
  const Reader reader(form.Describe());
  told.title = reader.Text("Caption");
  for (const Control* const control : form.Controls()) {
    if (IsTold(*control)) told.controls.push_back(ToldOf(*control));
  }
  const Control* const focus = form.Focus();
  if (focus != nullptr && focus->Shown()) told.focus = reader.Text("Focus");
  return told;
}

std::string Lines(const std::vector<std::string>& entries) {
  std::string lines;
  for (const std::string& entry : entries) lines += (lines.empty() ? "" : "\n") + entry;
  return lines;
}

std::string CellsOf(const GridCells& cells) {
  std::vector<std::string> rows;
  for (const auto& row : cells) {
    std::string line;
    for (const GridCell& cell : row) line += (line.empty() ? "" : " | ") + (cell.text.empty() ? "-" : cell.text);
    rows.push_back(line);
  }
  return Lines(rows);
}

std::string YesOrNo(bool value) { return value ? "yes" : "no"; }

std::string Readable(const std::string& caption) { return ReadCaption(caption).text; }

std::vector<std::string> FollowTab(const std::string& start, const std::function<std::string()>& press) {
  constexpr std::size_t Most = 60;
  std::vector<std::string> order = {press()};
  while (order.back() != start && order.size() < Most) {
    order.push_back(press());
    if (order.back() != order.front()) continue;
    order.pop_back();
    break;
  }
  return order;
}

void Tellings::Add(const std::string& look, const ToldForm& form) {
  std::ostringstream text;
  text << (text_.empty() ? "[" : "\n[") << look << "]\n";
  const auto line = [&](const std::string& what, const std::string& value) {
    text << what << " \"" << OneLine(value) << "\"\n";
  };
  line("title", form.title);
  line("focus", form.focus);
  if (!form.tabOrder.empty()) {
    text << "tab";
    for (const std::string& name : form.tabOrder) text << ' ' << name;
    text << '\n';
  }
  for (const ToldControl& control : form.controls) {
    text << control.name << (control.shown ? " shown" : " hidden") << (control.enabled ? " on" : " off") << '\n';
    for (const auto& [name, value] : control.facts) line("  " + name, value);
  }
  text_ += text.str();
}

std::vector<std::string> Differences(const std::string& told, const std::string& kept) {
  std::istringstream now(told), wanted(kept);
  std::vector<std::string> found;
  std::string head, nowLine, wantedLine;
  for (int number = 1;; ++number) {
    const bool more = static_cast<bool>(std::getline(now, nowLine));
    const bool moreWanted = static_cast<bool>(std::getline(wanted, wantedLine));
    if (!more && !moreWanted) return found;
    if (wantedLine.rfind('[', 0) == 0) head = wantedLine;
    if (more && moreWanted && nowLine == wantedLine) continue;
    found.push_back(head + " line " + std::to_string(number) + ": " + (more ? nowLine : "nothing") + ", and not " +
                    (moreWanted ? wantedLine : "nothing"));
    if (found.size() == 20) return found;  // a line too many makes all behind it differ
  }
}

std::string Kept(const std::filesystem::path& folder, const std::string& language) {
  std::ifstream file(folder / (language + ".told"), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace plexel::dialogs

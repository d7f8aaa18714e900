#include "files/panel_file.h"

#include <algorithm>
#include <map>
#include <set>

#include "files/file_lists.h"
#include "files/panel_values.h"
#include "files/path_text.h"

namespace plexel {

namespace {

constexpr std::size_t Limit = std::size_t{8} << 20U;
constexpr std::size_t MostParts = 50000;
constexpr std::string_view StyleSection = "STYLE ";

/// What a section draws and which elements may lie on it.
struct KindRow {
  std::string_view section;
  PanelPartKind kind;
  enumTactisBaseElementType plain, withLed;  ///< 0 for none
};

constexpr enumTactisBaseElementType NoElement{};
constexpr auto kinds = std::to_array<KindRow>({{"HOUSING", PanelPartKind::Housing, NoElement, NoElement},
                                               {"SCREEN", PanelPartKind::Screen, NoElement, NoElement},
                                               {"KEY", PanelPartKind::Key, Rect, RectLed},
                                               {"ROUNDKEY", PanelPartKind::RoundKey, Oval, OvalLed},
                                               {"KEYSWITCH", PanelPartKind::KeySwitch, Key, Key},
                                               {"LED", PanelPartKind::Led, Led, Led},
                                               {"LEGEND", PanelPartKind::Legend, NoElement, NoElement}});

const KindRow* KindOf(std::string_view section) {
  const auto row =
      std::find_if(kinds.begin(), kinds.end(), [section](const KindRow& kind) { return kind.section == section; });
  return row == kinds.end() ? nullptr : &*row;
}

/// A key of a part or a panel and what it sets.
template <typename Target>
struct KeyRow {
  std::string_view name;
  void (*set)(Target& target, const PanelValues& values, const IniLine& line);
};

using PartKey = KeyRow<PanelPart>;
constexpr auto styleKeys = std::to_array<PartKey>(
    {{"Fill",
      [](PanelPart& part, const PanelValues& values, const IniLine& line) { part.fillColor = values.Color(line); }},
     {"Line",
      [](PanelPart& part, const PanelValues& values, const IniLine& line) { part.lineColor = values.Color(line); }},
     {"Radius", [](PanelPart& part, const PanelValues& values,
                   const IniLine& line) { part.cornerRadius = values.Integer(line, 0, PanelValues::LargestSize); }},
     {"Legend",
      [](PanelPart& part, const PanelValues& values, const IniLine& line) { part.legend = values.Text(line); }},
     {"LegendColor",
      [](PanelPart& part, const PanelValues& values, const IniLine& line) { part.legendColor = values.Color(line); }},
     {"LegendSize", [](PanelPart& part, const PanelValues& values,
                       const IniLine& line) { part.legendSize = values.Integer(line, 4, 200); }},
     {"LegendAlign", [](PanelPart& part, const PanelValues& values, const IniLine& line) {
        part.legendAlignment = values.Alignment(line);
      }}});

constexpr std::string_view PlaceKey = "Place", ElementKey = "Element", SizeXKey = "SizeX", SizeYKey = "SizeY";
constexpr auto elementKeys = std::to_array<PartKey>(
    {{"ElementType",
      [](PanelPart& part, const PanelValues& values, const IniLine& line) {
        part.element->type = static_cast<enumTactisBaseElementType>(values.Integer(line, Led, Key));
      }},
     {SizeXKey,
      [](PanelPart& part, const PanelValues& values, const IniLine& line) {
        part.element->sizeX = static_cast<std::int16_t>(values.Integer(line, 1, PanelValues::LargestSize));
      }},
     {SizeYKey,
      [](PanelPart& part, const PanelValues& values, const IniLine& line) {
        part.element->sizeY = static_cast<std::int16_t>(values.Integer(line, 1, PanelValues::LargestSize));
      }},
     {"HardwareNumberKeys", [](PanelPart& part, const PanelValues& values,
                               const IniLine& line) { part.element->hardwareNumberKeys = values.KeyNumbers(line); }},
     {"HardwareNumberLed", [](PanelPart& part, const PanelValues& values,
                              const IniLine& line) { part.element->hardwareNumberLed = values.Integer(line); }},
     {"HardwareNumberButton", [](PanelPart& part, const PanelValues& values, const IniLine& line) {
        part.element->hardwareNumberButton = values.Integer(line);
      }}});

using PanelKey = KeyRow<Panel>;
constexpr std::string_view WidthKey = "Width", HeightKey = "Height";
constexpr auto panelKeys = std::to_array<PanelKey>(
    {{"Title", [](Panel& panel, const PanelValues& values, const IniLine& line) { panel.title = values.Text(line); }},
     {WidthKey, [](Panel& panel, const PanelValues& values,
                   const IniLine& line) { panel.width = values.Integer(line, 1, PanelValues::LargestSize); }},
     {HeightKey, [](Panel& panel, const PanelValues& values,
                    const IniLine& line) { panel.height = values.Integer(line, 1, PanelValues::LargestSize); }},
     {"TargetSystem",
      [](Panel& panel, const PanelValues& values, const IniLine& line) { panel.targetSystem = values.Text(line); }},
     {"DeviceType",
      [](Panel& panel, const PanelValues& values, const IniLine& line) { panel.deviceType = values.Integer(line); }},
     {"VantaEnabled",
      [](Panel& panel, const PanelValues& values, const IniLine& line) { panel.vantaEnabled = values.Switch(line); }}});

template <typename Target, std::size_t count>
bool Apply(const std::array<KeyRow<Target>, count>& rows, Target& target, const PanelValues& values,
           const IniLine& line) {
  const auto row =
      std::find_if(rows.begin(), rows.end(), [&line](const KeyRow<Target>& key) { return key.name == line.name; });
  if (row == rows.end()) return false;
  row->set(target, values, line);
  return true;
}

class Reader {
 public:
  explicit Reader(const TextFile& file) : values_(file), walk_(file) {}

  Panel Read() {
    if (!walk_.Next(line_) || !line_.section || line_.name != "PANEL") {
      values_.Refuse(std::max<std::size_t>(line_.number, 1), "this is no panel: [PANEL] is missing");
    }
    ReadPanelKeys();
    while (line_.name != "END") ReadSection();
    if (IniLine extra; walk_.Next(extra)) values_.Refuse(extra.number, "something stands behind [END]");
    return std::move(panel_);
  }

 private:
  /// Walks on; a key that stands twice in its section is refused.
  void Next() {
    const std::size_t last = line_.number;
    if (!walk_.Next(line_)) values_.Refuse(last, "the file is cut off behind this line: [END] is missing");
    if (line_.section) {
      seen_.clear();
    } else if (!seen_.insert(line_.name).second) {
      values_.Refuse(line_.number, std::string(line_.name) + " stands twice");
    }
  }

  [[noreturn]] void RefuseKey() const {
    values_.Refuse(line_.number, "\"" + Excerpt(line_.name) + "\" is unknown in this section");
  }

  void ReadPanelKeys() {
    const std::size_t section = line_.number;
    for (Next(); !line_.section; Next()) {
      if (!Apply(panelKeys, panel_, values_, line_)) RefuseKey();
    }
    if (panel_.width == 0 || panel_.height == 0) values_.Refuse(section, "the panel has no Width or no Height");
  }

  void ReadSection() {
    const bool style = line_.name.starts_with(StyleSection);
    const KindRow* const kind = KindOf(style ? line_.name.substr(StyleSection.size()) : line_.name);
    if (kind == nullptr) values_.Refuse(line_.number, "there is no section [" + Excerpt(line_.name) + "]");
    const auto [known, isNew] = styles_.emplace(kind->kind, PanelPart());
    known->second.kind = kind->kind;
    if (style) {
      ReadStyle(known->second);
    } else {
      ReadPart(*kind, known->second);
    }
  }

  void ReadStyle(PanelPart& style) {
    for (Next(); !line_.section; Next()) {
      if (!Apply(styleKeys, style, values_, line_)) RefuseKey();
    }
  }

  void ReadPart(const KindRow& kind, const PanelPart& style) {
    if (panel_.parts.size() == MostParts) values_.Refuse(line_.number, "the panel has too many parts");
    PanelPart part = style;
    const std::size_t section = line_.number;
    for (Next(); !line_.section; Next()) ReadPartKey(kind, part);
    if (part.box.width == 0) values_.Refuse(section, "the part has no Place");
    if (part.element) FinishElement(kind, part, section);
    panel_.parts.push_back(std::move(part));
  }

  void ReadPartKey(const KindRow& kind, PanelPart& part) {
    if (line_.name == PlaceKey) {
      part.box = values_.Box(line_);
      if (part.box.left + part.box.width > panel_.width || part.box.top + part.box.height > panel_.height) {
        values_.Refuse(line_.number, "the part leaves the panel");
      }
    } else if (line_.name == ElementKey) {
      if (kind.plain == NoElement) values_.Refuse(line_.number, "no element can lie on this part");
      part.element.emplace().id = values_.Name(line_);
      if (!ids_.insert(part.element->id).second) {
        values_.Refuse(line_.number, "the element " + part.element->id + " stands twice");
      }
    } else if (!Apply(styleKeys, part, values_, line_)) {
      ReadElementKey(part);
    }
  }

  void ReadElementKey(PanelPart& part) {
    PanelPart scratch;
    scratch.element.emplace();
    if (!Apply(elementKeys, part.element ? part : scratch, values_, line_)) RefuseKey();
    if (!part.element) values_.Refuse(line_.number, std::string(line_.name) + " stands before Element");
  }

  void FinishElement(const KindRow& kind, PanelPart& part, std::size_t section) const {
    PanelElement& element = *part.element;
    if (element.type != kind.plain && element.type != kind.withLed) {
      values_.Refuse(section, "ElementType must be " + std::to_string(kind.plain) +
                                  (kind.plain == kind.withLed ? "" : " or " + std::to_string(kind.withLed)));
    }
    if (element.sizeX == 0) element.sizeX = static_cast<std::int16_t>(part.box.width);
    if (element.sizeY == 0) element.sizeY = static_cast<std::int16_t>(part.box.height);
  }

  PanelValues values_;
  IniWalk walk_;
  IniLine line_;
  std::set<std::string_view> seen_;
  std::set<std::string> ids_;
  std::map<PanelPartKind, PanelPart> styles_;
  Panel panel_;
};

constexpr std::string_view Extension = ".panel";

}  // namespace

const PanelPart* Panel::Find(std::string_view elementId) const {
  const auto part = std::find_if(parts.begin(), parts.end(), [elementId](const PanelPart& candidate) {
    return candidate.element && candidate.element->id == elementId;
  });
  return part == parts.end() ? nullptr : &*part;
}

Panel ReadPanel(const std::filesystem::path& path) {
  const TextFile file(path, Limit);
  return Reader(file).Read();
}

std::string ReadPanelText(const std::filesystem::path& path) {
  const TextFile file(path, Limit);
  std::string text;
  LineWalk lines = file.Lines();
  for (std::string_view line; lines.Next(line);) text.append(line) += '\n';
  return text;
}

Panel ParsePanel(const std::filesystem::path& origin, std::string text) {
  if (text.size() > Limit) throw FileError(origin, "the panel is too large");
  const TextFile file(origin, std::move(text));
  return Reader(file).Read();
}

std::filesystem::path PanelFile(const std::filesystem::path& directory, const std::string& name) {
  if (name.empty() || name.front() == '.' || name.find_first_of(std::string_view("/\\\0", 3)) != std::string::npos) {
    throw FileError(directory, "there is no panel \"" + Excerpt(name) + "\"");
  }
  return directory / PathOf(name + std::string(Extension));
}

std::vector<std::string> PanelNames(const std::filesystem::path& directory) {
  return NamesOfFilesWith(Extension, directory);
}

}  // namespace plexel

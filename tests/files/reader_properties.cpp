#include "reader_properties.h"

#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>

#include "files/file_capabilities.h"
#include "files/file_settings.h"
#include "files/language_file.h"
#include "files/panel_file.h"
#include "files/parameter_check.h"
#include "files/parameter_file.h"
#include "files/parameter_syntax.h"
#include "files/project_file.h"
#include "files/text_lines.h"
#include "forms/ascii.h"
#include "forms/characters.h"

namespace plexel {

namespace {

void Require(bool holds, const char* property) {
  if (!holds) throw std::logic_error(property);
}

std::filesystem::path Put(const std::filesystem::path& directory, const char* name, std::string_view content) {
  const std::filesystem::path file = directory / name;
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream.write(content.data(), static_cast<std::streamsize>(content.size()));
  stream.close();
  if (!stream) throw std::runtime_error("cannot write " + file.string());
  return file;
}

/// Runs a reading, which may end in a proper FileError; false when it does.
template <typename Reading>
bool Reads(const std::filesystem::path& file, Reading&& reading) {
  try {
    reading();
    return true;
  } catch (const FileError& error) {
    Require(!error.Reason().empty(), "an error has a reason");
    Require(error.File() == file, "an error names its file");
    Require(std::string(error.what()).starts_with(file.string() + ":"), "an error begins with its file");
    return false;
  }
}

std::string Read(FileParameterReader& reader, const std::string& file, std::size_t entry, const char* key,
                 bool& found) {
  std::string value;
  std::int32_t status = -1;
  reader.ReadEntry(file, "SCANCODE" + std::to_string(entry), key, value, 0, status);
  found = status == 0;
  Require(found || value.empty(), "a missing value is empty");
  return value;
}

/// The raw value of a key as a walk over all lines finds it: the first of that name in the first section of that name.
std::optional<std::string_view> Walked(std::string_view text, std::string_view section, std::string_view key) {
  LineWalk lines(text);
  bool inside = false;
  for (std::string_view line; lines.Next(line);) {
    const ParameterLine read = ReadParameterLine(line);
    if (read.kind == ParameterLineKind::Section && inside) return std::nullopt;
    if (read.kind == ParameterLineKind::Section) inside = ascii::Same(read.name, section);
    if (read.kind == ParameterLineKind::Key && inside && ascii::Same(read.name, key)) return read.value;
  }
  return std::nullopt;
}

/// Compares the first entries with a walk over the lines.
void CheckAgainstWalk(FileParameterReader& reader, const std::string& file, std::string_view content) {
  const ParameterText text{std::string(content)};
  for (std::size_t entry = 0; entry <= 12; ++entry) {
    for (const char* const key : {"REMARK001", "MAKECODE", ""}) {
      const std::string section = entry == 0 ? "" : "SCANCODE" + std::to_string(entry);
      std::string value;
      std::int32_t status = -1;
      reader.ReadEntry(file, section, key, value, 0, status);
      const std::optional<std::string_view> walked = Walked(text.Text(), section, key);
      Require((status == 0) == walked.has_value(), "a key is found where a walk over the lines finds it");
      Require(!walked || value == text.Decode(*walked), "a value is the one that a walk over the lines finds");
    }
  }
}

/// Reads a list as the dialog does and gives its length.
std::size_t CountNames(FileParameterReader& reader, const std::string& file, const char* key) {
  constexpr std::size_t most = 100000;
  std::size_t count = 0;
  for (bool found = true; found && count < most; count += found ? 1 : 0) {
    const std::string value = Read(reader, file, count + 1, key, found);
    std::string item;
    reader.GetItem(1, value, item);
    Require(item.find(':') == std::string::npos, "an item has no delimiter");
    Require(characters::IsWellFormed(item), "a name is UTF-8");
  }
  return count;
}

}  // namespace

void CheckProjectReader(const std::filesystem::path& directory, std::string_view content) {
  const std::filesystem::path file = Put(directory, "project", content);
  Reads(file, [&] {
    const std::string text = FormatProject(ReadProject(file));
    Require(FormatProject(ParseProject(TextFile(file, text))) == text, "a project comes back");
  });
}

void CheckPanelReader(const std::filesystem::path& directory, std::string_view content) {
  const std::filesystem::path file = Put(directory, "panel", content);
  Reads(file, [&] {
    const Panel panel = ReadPanel(file);
    Require(panel.width > 0 && panel.height > 0, "a panel has a size");
    for (const PanelPart& part : panel.parts) {
      Require(part.box.left >= 0 && part.box.left + part.box.width <= panel.width, "a part lies in the panel's width");
      Require(part.box.top >= 0 && part.box.top + part.box.height <= panel.height, "a part lies in the panel's height");
      Require(characters::IsWellFormed(part.legend), "a legend is UTF-8");
      if (!part.element) continue;
      Require(panel.Find(part.element->id) == &part, "an element's id is its own");
      Require(part.element->type >= Led && part.element->type <= Key, "an element has a kind");
      Require(part.element->sizeX > 0 && part.element->sizeY > 0, "an element has a size");
    }
  });
}

void CheckLanguageReader(const std::filesystem::path& directory, std::string_view content) {
  const std::filesystem::path file = Put(directory, "x.lang", content);
  Reads(file, [&] {
    for (const auto& [number, text] : ReadLanguageFile(file)) {
      Require(number > 0, "a text has a number");
      Require(characters::IsWellFormed(text), "a text is UTF-8");
    }
  });
}

void CheckSettingsReader(const std::filesystem::path& directory, std::string_view content) {
  const std::filesystem::path file = Put(directory, "settings.ini", content);
  const std::filesystem::path registryFile = Put(directory, "registry.ini", content);
  FileRegistry registry(registryFile, "KEY");
  FileSettings settings(file, directory, registry);
  for (const FileError& problem : settings.Problems()) Require(!problem.Reason().empty(), "a fault has a reason");
  for (const SettingRow& row : SettingTable) {
    Require(settings.Value(row) >= row.low && settings.Value(row) <= row.high, "a setting lies within its bounds");
  }
  settings.Save();
  const FileSettings again(file, directory, registry);
  Require(again.Problems().empty(), "saved settings are proper");
  Require(again.Language() == settings.Language(), "the language comes back");
  for (const SettingRow& row : SettingTable) Require(again.Value(row) == settings.Value(row), "settings come back");
}

void CheckParameterReader(const std::filesystem::path& directory, std::string_view content) {
  const std::string file = Put(directory, "f.cfg", content).string();
  FileParameterReader reader;
  reader.SetDelimiter(":");
  CheckAgainstWalk(reader, file, content);
  const std::size_t english = CountNames(reader, file, "REMARK001");
  const std::size_t german = CountNames(reader, file, "REMARK049");
  std::vector<Finding> findings;
  Reads(file, [&] { findings = CheckParameterFile(file); });
  std::size_t line = 1;
  for (const Finding& finding : findings) {
    Require(finding.line >= line && !finding.text.empty(), "findings come with text in the order of lines");
    line = finding.line;
  }
  if (!findings.empty()) return;
  Require(english > 0 && english == german, "without findings both lists hold all entries");
  bool found = false;
  std::string item;
  for (std::size_t entry = 1; entry <= english; ++entry) {
    const std::string make = Read(reader, file, entry, "MAKECODE", found);
    Require(found, "without findings an entry has make codes");
    reader.GetItem(1, make, item);
    Require(!item.empty(), "without findings there is a first make code");
  }
}

void CheckCapabilityReader(const std::filesystem::path& directory, std::string_view content) {
  const std::filesystem::path file = Put(directory, "x.cap", content);
  Reads(file, [&] {
    FileCapabilities capabilities(directory);
    for (const std::string& target : capabilities.Targets()) Require(!target.empty(), "a target has a name");
    Require(capabilities.Ask(Capability::HasUserLed, "") == 0, "an empty target has nothing");
  });
}

}  // namespace plexel

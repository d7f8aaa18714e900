#include "project/project_export.h"

#include <utility>
#include <vector>

#include "files/project_syntax.h"
#include "files/text_lines.h"
#include "project/code_bytes.h"
#include "project/exchange_words.h"
#include "project/json_text.h"
#include "project/value_text.h"

namespace plexel {

namespace {

namespace words = exchange_words;

/// Writes the document with an indentation of two blanks.
class Exporter {
 public:
  std::string Run(const Project& project) {
    out_ = "{\n";
    Member(2, words::Format);
    out_ += std::to_string(words::FormatVersion) + ",\n";
    Member(2, words::Panel);
    out_ += "{\"" + std::string(words::Name) + "\": ";
    AppendJsonText(out_, project.panel);
    PutPanelText(project.panelText);
    out_ += "},\n";
    Member(2, words::Elements);
    List(2, '[', ']', project.elements, [this](const ProjectElement& element) { Put(element); });
    out_ += "\n}\n";
    return std::move(out_);
  }

 private:
  /// The lines of a panel that is carried.
  void PutPanelText(std::string_view text) {
    if (text.empty()) return;
    out_ += ", \"" + std::string(words::Text) + "\": ";
    std::vector<std::string_view> lines;
    LineWalk walk(text);
    for (std::string_view line; walk.Next(line);) lines.push_back(line);
    List(2, '[', ']', lines, [this](std::string_view line) {
      Indent(4);
      AppendJsonText(out_, line);
    });
  }

  void Indent(std::size_t depth) { out_.append(depth, ' '); }
  void Member(std::size_t depth, std::string_view name) {
    Indent(depth);
    AppendJsonText(out_, name);
    out_ += ": ";
  }

  /// What a bracket holds, one item a line.
  template <typename Items, typename Action>
  void List(std::size_t depth, char open, char close, const Items& items, Action&& put) {
    out_ += open;
    bool first = true;
    for (const auto& item : items) {
      out_ += first ? "\n" : ",\n";
      first = false;
      put(item);
    }
    if (!first) {
      out_ += '\n';
      Indent(depth);
    }
    out_ += close;
  }

  void Put(const ProjectElement& element) {
    Indent(4);
    out_ += "{\n";
    Member(6, words::Place);
    AppendJsonText(out_, element.place);
    out_ += ",\n";
    Member(6, words::Properties);
    std::vector<std::pair<std::string_view, const BagValue*>> entries;
    const auto take = [&entries](std::string_view key, const BagValue& value) { entries.emplace_back(key, &value); };
    element.bag.ForEach(take, take);
    List(6, '{', '}', entries, [this](const auto& entry) { Put(entry.first, *entry.second); });
    if (!element.codes.empty()) {
      out_ += ",\n";
      Member(6, words::Codes);
      List(6, '[', ']', element.codes, [this](const SavedCodes& codes) { Put(codes); });
    }
    out_ += '\n';
    Indent(4);
    out_ += '}';
  }

  void Put(std::string_view key, const BagValue& value) {
    const TypedJson typed = JsonOf(value);
    Member(8, key);
    out_ += "{\"" + std::string(typed.type) + "\": " + typed.json + '}';
  }

  void Put(const SavedCodes& saved) {
    const auto entry = [this](std::string_view name, const std::string& json) {
      out_ += '"' + std::string(name) + "\": " + json;
    };
    Indent(8);
    out_ += '{';
    entry(words::Buffer,
          '"' + std::string(project_syntax::BufferNames.at(static_cast<std::size_t>(saved.buffer))) + "\", ");
    entry(words::Next, std::to_string(saved.codes.NextValue) + ", ");
    entry(words::Bytes, '"' + ChangedBytes(saved.codes) + "\"}");
  }

  std::string out_;
};

}  // namespace

std::string ExportProject(const Project& project) { return Exporter().Run(project); }

std::string ProjectDocument(const std::filesystem::path& project, const Project& content, std::size_t limit) {
  std::string document = ExportProject(content);
  if (document.size() > limit) throw FileError(project, "the document of the project is too large");
  return document;
}

}  // namespace plexel

#include "project/search.h"

#include <algorithm>

#include "forms/characters.h"
#include "project/key_code_names.h"
#include "project/report.h"

namespace plexel {

namespace {

bool Holds(std::string_view text, std::string_view word) { return text.find(word) != std::string_view::npos; }

/// Takes what stands ahead of the next blank, or the words between two quotation marks, from the start of a text.
std::string_view TakeWord(std::string_view& text) {
  const bool quoted = text.starts_with('"');
  if (quoted) text.remove_prefix(1);
  const std::size_t end = std::min(quoted ? text.find('"') : text.find_first_of(" \t\n"), text.size());
  const std::string_view word = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return word;
}

}  // namespace

TextSearch::TextSearch(std::string_view text) {
  while (!text.empty()) {
    const std::string_view word = TakeWord(text);
    if (!word.empty()) words_.push_back(characters::Folded(word));
  }
}

bool TextSearch::Finds(std::string_view searchable) const {
  return std::ranges::all_of(words_, [&](const std::string& word) { return Holds(searchable, word); });
}

bool TextSearch::Marks(std::string_view text) const {
  const std::string folded = characters::Folded(text);
  return std::ranges::any_of(words_, [&](const std::string& word) { return Holds(folded, word); });
}

std::string SearchableText(const ReportRow& row, std::string_view beside) {
  std::string text;
  for (const std::string_view part :
       {std::string_view(row.element), std::string_view(row.kind), std::string_view(row.press),
        std::string_view(row.release), std::string_view(row.led), std::string_view(row.note), beside}) {
    if (!part.empty()) text.append(part) += '\n';
  }
  return characters::Folded(text);
}

KeySearch::KeySearch(const std::vector<KeyCode>& keys) {
  for (const KeyCode key : keys) {
    if (std::ranges::find(keys_, key) == keys_.end()) keys_.push_back(key);
  }
}

KeySearch::Found KeySearch::In(const udtTactisBaseElement_ScanCodeInfo& record, std::int32_t layer) const {
  Found found;
  std::vector<KeyCode> down;
  for (const KeyReport& report : ReadLayer(record, layer).reports) {
    if (report.deed == KeyDeed::Unknown) continue;
    if (report.deed == KeyDeed::Up) {
      std::erase(down, report.code);
      continue;
    }
    if (report.deed == KeyDeed::Down) down.push_back(report.code);
    const bool isOfThem = std::ranges::find(keys_, report.code) != keys_.end();
    const bool allDown = std::ranges::all_of(
        keys_, [&](KeyCode key) { return key == report.code || std::ranges::find(down, key) != down.end(); });
    if (isOfThem && allDown) (report.at == Direction::Press ? found.press : found.release) = true;
  }
  return found;
}

std::string KeySearch::Text() const {
  std::string text;
  for (const KeyCode key : keys_) {
    const std::string_view function = PanelFunctionNameOf(key);
    text += (text.empty() ? "" : " + ") + (function.empty() ? KeyNameOf(key) : std::string(function));
  }
  return text;
}

}  // namespace plexel

#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "project/key_reading.h"

namespace plexel {

struct ReportRow;

/// What a person looks for in a project, element by element and layer by layer.

/// Words that all must stand in what is looked through, in any order, in any case and with any accents. Words between
/// quotation marks belong together.
class TextSearch {
 public:
  explicit TextSearch(std::string_view text = {});
  bool IsEmpty() const { return words_.empty(); }
  /// Whether each of the words stands in a text that SearchableText has made.
  bool Finds(std::string_view searchable) const;
  /// Whether any of the words stands in a text.
  bool Marks(std::string_view text) const;

 private:
  std::vector<std::string> words_;
};

/// What is looked through of a row, and of what else is told beside it; no word reaches from one text into the next.
std::string SearchableText(const ReportRow& row, std::string_view beside = {});

/// Keys that go down together, or a command to the panel, looked for in the bytes.
class KeySearch {
 public:
  explicit KeySearch(const std::vector<KeyCode>& keys = {});
  bool IsEmpty() const { return keys_.empty(); }

  /// Where a layer sends them: when the last of them goes down.
  struct Found {
    bool press = false, release = false;
    explicit operator bool() const { return press || release; }
    bool operator==(const Found&) const = default;
  };
  /// A layer outside 1 to 4 sends nothing.
  Found In(const udtTactisBaseElement_ScanCodeInfo& record, std::int32_t layer) const;
  /// The keys by their names, with plus signs between them.
  std::string Text() const;

 private:
  std::vector<KeyCode> keys_;
};

}  // namespace plexel

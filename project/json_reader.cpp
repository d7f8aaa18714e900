#include "project/json_reader.h"

#include <algorithm>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "files/file_error.h"
#include "files/text_lines.h"
#include "forms/characters.h"

namespace plexel {

namespace {

using Json = nlohmann::ordered_json;

/// Puts a document together as its parts are read. Every call gives false when the reading has to end.
class Builder {
 public:
  explicit Builder(std::string_view content) : content_(content) {}

  Json Document() { return std::move(document_); }
  /// Why the reading has ended, and in which line; line 0 when the reason begins with a place.
  const std::string& Reason() const { return reason_; }
  std::size_t Line() const { return line_; }

  bool null() { return Add(nullptr); }
  bool boolean(bool value) { return Add(value); }
  bool number_integer(Json::number_integer_t value) { return Add(value); }
  bool number_unsigned(Json::number_unsigned_t value) { return Add(value); }
  bool number_float(Json::number_float_t value, const std::string&) { return Add(value); }
  bool string(std::string& value) { return Add(std::move(value)); }
  bool binary(Json::binary_t&) { return false; }

  bool start_object(std::size_t) { return Open(Json::object()); }
  bool start_array(std::size_t) { return Open(Json::array()); }
  bool end_object() { return Close(); }
  bool end_array() { return Close(); }
  bool key(std::string& name) {
    Level& level = open_.back();
    const bool isNew = level.names.insert(name).second;
    level.name = std::move(name);
    if (isNew) return true;
    return Refuse(0, Pointer() + ": stands twice");
  }

  bool parse_error(std::size_t position, const std::string& token, const Json::exception& fault) {
    const std::size_t end = std::min(position, content_.size());
    const std::size_t line = LineOf(content_, end - std::min<std::size_t>(end, 1));
    if (dynamic_cast<const Json::out_of_range*>(&fault) != nullptr) {
      return Refuse(line, "the number " + Excerpt(token) + " is too large");
    }
    if (position > content_.size()) return Refuse(line, "this is no whole JSON: the text is cut off");
    constexpr std::size_t shown = 20;
    const std::size_t start = end - std::min(end, shown);
    return Refuse(line, "this is no JSON: wrong at the end of \"" + Excerpt(content_.substr(start, end - start)) + '"');
  }

 private:
  /// An object or a list that is being read, and where its latest part stands in it.
  struct Level {
    Json value;
    std::string name;
    std::unordered_set<std::string> names;
  };

  bool Refuse(std::size_t line, std::string reason) {
    line_ = line;
    reason_ = std::move(reason);
    return false;
  }

  std::string Pointer() const {
    std::string pointer;
    for (const Level& level : open_) {
      pointer += '/' + (level.value.is_array() ? std::to_string(level.value.size()) : PointerPart(level.name));
    }
    return pointer;
  }

  bool Add(Json value) {
    if (open_.empty()) {
      document_ = std::move(value);
    } else if (open_.back().value.is_array()) {
      open_.back().value.get_ref<Json::array_t&>().push_back(std::move(value));
    } else {
      // A search for the name, as an assignment makes it, would take time that grows with the square of their number.
      open_.back().value.get_ref<Json::object_t&>().emplace_back(std::move(open_.back().name), std::move(value));
    }
    return true;
  }

  bool Open(Json empty) {
    if (open_.size() == DeepestJson) return Refuse(0, Pointer() + ": is nested too deep");
    open_.push_back({std::move(empty), {}, {}});
    return true;
  }

  bool Close() {
    Json value = std::move(open_.back().value);
    open_.pop_back();
    return Add(std::move(value));
  }

  std::string_view content_;
  std::vector<Level> open_;
  Json document_;
  std::string reason_;
  std::size_t line_{};
};

}  // namespace

Json ReadJson(const std::filesystem::path& file, std::string_view content) {
  content.remove_prefix(Utf8MarkLength(content));
  if (const std::size_t broken = characters::FindBroken(content); broken != std::string_view::npos) {
    throw FileError(file, LineOf(content, broken), "this is no UTF-8");
  }
  Builder builder(content);
  if (!Json::sax_parse(content, &builder)) throw FileError(file, builder.Line(), builder.Reason());
  return builder.Document();
}

std::string PointerPart(std::string_view name) {
  std::string part;
  for (const char c : name) {
    if (c == '~' || c == '/') {
      part += c == '~' ? "~0" : "~1";
    } else {
      part += (c >= 0 && c < ' ') || c == '\x7F' ? '?' : c;
    }
  }
  return part;
}

}  // namespace plexel

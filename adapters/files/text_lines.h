#pragma once

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "files/file_error.h"

namespace plexel {

/// Walks over the lines of a text. LF, CR LF and CR each end a line, mixed as they come.
class LineWalk {
 public:
  explicit LineWalk(std::string_view text) : text_(text), lineFeed_(LineFeed()) {}
  /// Gives the next line without its end; false behind the last one. A text that ends in a line end has no empty line
  /// behind it.
  bool Next(std::string_view& line);
  /// The number of the line that Next gave last, from 1; 0 before the first.
  std::size_t Number() const { return number_; }

 private:
  std::size_t LineFeed() const { return std::min(text_.find('\n', position_), text_.size()); }
  void FindCarriageReturn();

  std::string_view text_;
  std::size_t position_ = 0;
  std::size_t lineFeed_;      ///< the next LF at or behind the position, the end of the text when there is none
  std::size_t noReturn_ = 0;  ///< up to here there is no CR behind the position
  std::size_t number_ = 0;
};

/// Looks for a CR ahead of the next LF, by pieces that the cache still holds when their lines are read.
inline void LineWalk::FindCarriageReturn() {
  constexpr std::size_t piece = std::size_t{1} << 13U;
  noReturn_ = std::max(noReturn_, position_);
  while (noReturn_ < lineFeed_ && text_[noReturn_] != '\r') {
    const std::string_view next = text_.substr(noReturn_, piece);
    noReturn_ += std::min(next.find('\r'), next.size());
  }
}

inline bool LineWalk::Next(std::string_view& line) {
  if (position_ >= text_.size()) return false;
  if (lineFeed_ < position_) lineFeed_ = LineFeed();
  if (noReturn_ < lineFeed_) FindCarriageReturn();
  const std::size_t end = std::min(lineFeed_, noReturn_);
  line = std::string_view(text_.data() + position_, end - position_);
  position_ = end == noReturn_ && lineFeed_ == end + 1 ? end + 2 : end + 1;
  ++number_;
  return true;
}

/// A text file in memory, checked for what no text of this program holds.
class TextFile {
 public:
  static constexpr std::size_t DefaultLimit = std::size_t{64} << 20U;
  /// The longest line of any format.
  static constexpr std::size_t LongestLine = std::size_t{1} << 20U;

  /// Reads the file. A byte order mark of UTF-8 is passed over. FileError when the file cannot be read or is larger
  /// than `limit` bytes, for UTF-16, for a NUL byte and for a line longer than LongestLine.
  explicit TextFile(std::filesystem::path file, std::size_t limit = DefaultLimit);
  /// The same checks on a content that is already in memory.
  TextFile(std::filesystem::path file, std::string content);

  /// Whether the file began with the byte order mark of UTF-8.
  bool HasUtf8Mark() const { return start_ != 0; }
  std::string_view Text() const { return std::string_view(content_).substr(start_); }
  LineWalk Lines() const { return LineWalk(Text()); }
  FileError Error(std::size_t line, const std::string& reason) const {
    return FileError(path_, linesAhead_ + line, reason);
  }
  /// What stands behind the first lines, which are so many bytes long. Its errors tell the lines of the whole file.
  TextFile Behind(std::size_t lines, std::size_t length) const;

 private:
  void Check();
  void CheckLineLengths() const;

  std::filesystem::path path_;
  std::string content_;
  std::size_t start_ = 0;
  std::size_t linesAhead_ = 0;  ///< of the file, ahead of the text
};

/// The number of the line in which a position lies, from 1.
std::size_t LineOf(std::string_view text, std::size_t position);

/// The text without the blanks and tabs around it.
std::string_view TrimBlanks(std::string_view text);

/// The length of the byte order mark of UTF-8 at the start of a content, 0 for none.
std::size_t Utf8MarkLength(std::string_view content);
/// Whether a content begins with a byte order mark of UTF-16.
bool HasUtf16Mark(std::string_view content);

/// A piece of a faulty text for a message: at most 40 bytes, control characters and broken UTF-8 as '?'.
std::string Excerpt(std::string_view text);

}  // namespace plexel

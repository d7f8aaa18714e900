#include "project/recovery_file.h"

#include <string_view>

#include "files/number_text.h"
#include "files/path_text.h"
#include "forms/ascii.h"

namespace plexel {

namespace {

constexpr std::string_view Start = "[RECOVERY]\nFormat=1\n";
constexpr std::string_view FileKey = "File=", TimeKey = "Time=";

/// A name of a file is bytes: what is no plain character stands as "%" and two digits.
std::string Escaped(const std::string& bytes) {
  std::string text;
  for (const char c : bytes) {
    const auto code = static_cast<unsigned char>(c);
    if (c > ' ' && c <= '~' && c != '%') {
      text += c;
    } else {
      text += {'%', ascii::HexDigits[code >> 4U], ascii::HexDigits[code & 0xFU]};
    }
  }
  return text;
}

bool Unescape(std::string_view text, std::string& bytes) {
  for (std::size_t index = 0; index < text.size(); ++index) {
    if (text[index] != '%') {
      bytes += text[index];
      continue;
    }
    if (text.size() - index < 3) return false;
    const std::uint8_t high = ascii::HexValue(text[index + 1]), low = ascii::HexValue(text[index + 2]);
    if (high == ascii::NoDigit || low == ascii::NoDigit) return false;
    bytes += static_cast<char>(high * 16 + low);
    index += 2;
  }
  return bytes.find('\0') == std::string::npos;
}

}  // namespace

std::string FormatRecoveryHead(const RecoveryHead& head) {
  std::string text(Start);
  text.append(FileKey).append(Escaped(TextOf(head.file))) += '\n';
  text.append(TimeKey).append(std::to_string(head.time)) += '\n';
  return text;
}

RecoveryFile ParseRecovery(const TextFile& text) {
  constexpr std::size_t headLines = 4;
  if (!text.Text().starts_with(Start)) throw text.Error(1, "this is no recovery file of a known format");
  RecoveryFile recovery;
  LineWalk lines = text.Lines();
  std::string_view line;
  std::size_t length = 0;
  while (lines.Number() < headLines && lines.Next(line)) {
    length += line.size() + 1;
    std::string bytes;
    if (lines.Number() == headLines - 1) {
      if (!line.starts_with(FileKey) || !Unescape(line.substr(FileKey.size()), bytes)) {
        throw text.Error(lines.Number(), "the name of the project's file must stand here");
      }
      recovery.head.file = PathOf(bytes);
    } else if (lines.Number() == headLines) {
      const auto time =
          line.starts_with(TimeKey) ? ParseNumber<std::int64_t>(line.substr(TimeKey.size())) : std::nullopt;
      if (!time) throw text.Error(lines.Number(), "the time must stand here");
      recovery.head.time = *time;
    }
  }
  if (length > text.Text().size()) throw text.Error(lines.Number(), "the file is cut off");
  recovery.project = ParseProject(text.Behind(headLines, length));
  return recovery;
}

}  // namespace plexel

#include "files/project_writer.h"

#include <array>
#include <charconv>

#include "files/project_syntax.h"
#include "files/project_text.h"
#include "files/text_lines.h"
#include "forms/ascii.h"
#include "platform/failure.h"

namespace plexel {

namespace {

using namespace project_syntax;

/// What an ordinary element needs in the file.
constexpr std::size_t UsualBytes = 768;
/// So many equal bytes are written as one run.
constexpr std::size_t ShortestRun = 4;

[[noreturn]] void Refuse(FailureKind kind, const std::string& reason) { throw Failure(kind, reason); }

}  // namespace

ProjectWriter::ProjectWriter(std::string_view panel, std::size_t count, std::string_view panelText, std::size_t limit)
    : limit_(limit), left_(count), places_(count) {
  out_.reserve(count * UsualBytes + panelText.size());
  Append("[PROJECT]\nFormat=");
  Append(panelText.empty() ? PlainFormat : PanelFormat);
  Append("\nMarks=\x8B\x9B\nPanel=");
  AppendProjectText(out_, panel, {});
  EndLine();
  Append("Elements=");
  AppendNumber(count);
  EndLine();
  if (panelText.empty()) return;
  Append("\n[PANEL]\n");
  lineStart_ = out_.size();
  LineWalk lines(panelText);
  for (std::string_view line; lines.Next(line);) {
    Append("Line=");
    AppendProjectText(out_, line);
    EndLine();
  }
}

std::string ProjectWriter::Finish() {
  if (left_ != 0) Refuse(FailureKind::Index, "there are fewer elements than were told");
  Append(Tail);
  if (out_.size() > limit_) Refuse(FailureKind::Overflow, "the project is too large");
  return std::move(out_);
}

std::string ProjectWriter::Section(const ProjectElement& element) {
  ProjectWriter writer;
  writer.Add(element);
  return std::move(writer.out_);
}

void ProjectWriter::EndLine() {
  if (out_.size() - lineStart_ > TextFile::LongestLine) Refuse(FailureKind::Overflow, "a text is too long");
  out_ += '\n';
  lineStart_ = out_.size();
}

template <typename Number>
void ProjectWriter::AppendNumber(Number number) {
  char digits[32];
  out_.append(digits, std::to_chars(digits, digits + sizeof(digits), number).ptr);
}

void ProjectWriter::AppendEntry(const BagValue& value) {
  out_ += '=';
  std::visit([this](const auto& typed) { AppendValue(typed); }, value);
  EndLine();
}

void ProjectWriter::Add(const ProjectElement& element) {
  if (left_ == 0) Refuse(FailureKind::Index, "there are more elements than were told");
  --left_;
  if (!places_.Insert(element.place)) Refuse(FailureKind::Index, "the place " + element.place + " stands twice");
  Append("\n[ELEMENT ");
  AppendProjectText(out_, element.place, "]");
  out_ += ']';
  EndLine();
  element.bag.ForEach(
      [this](std::string_view key, const BagValue& value) {
        Append(key);
        AppendEntry(value);
      },
      [this](std::string_view key, const BagValue& value) {
        if (key.empty()) Refuse(FailureKind::Index, "a value has no key");
        AppendProjectText(out_, key, "=[];#");
        AppendEntry(value);
      });
  for (const SavedCodes& saved : element.codes) {
    if (saved.buffer < 0 || static_cast<std::size_t>(saved.buffer) >= BufferNames.size()) {
      Refuse(FailureKind::Index, "there is no code buffer " + std::to_string(saved.buffer));
    }
    Append(BufferNames[static_cast<std::size_t>(saved.buffer)]);
    AppendCodes(saved.codes);
    EndLine();
  }
}

template <typename Number>
void ProjectWriter::AppendTyped(std::string_view type, Number number) {
  Append(type);
  out_ += ' ';
  AppendNumber(number);
}
void ProjectWriter::AppendValue(std::int16_t value) { AppendTyped(Int16, value); }
void ProjectWriter::AppendValue(std::int32_t value) { AppendTyped(Int32, value); }
void ProjectWriter::AppendValue(std::uint8_t value) { AppendTyped(UInt8, static_cast<unsigned>(value)); }
void ProjectWriter::AppendValue(Boolean value) { AppendTyped(BooleanType, value.Value()); }
void ProjectWriter::AppendValue(double value) { AppendTyped(Double, value); }
void ProjectWriter::AppendValue(const std::string& value) {
  Append(Text);
  if (!value.empty()) out_ += ' ';
  AppendProjectText(out_, value);
}

/// The last index in use, then the bytes up to the last that is not 0, with runs of equal ones shortened.
void ProjectWriter::AppendCodes(const udtTactisBaseElement_TACTIS_SCANCODE& codes) {
  out_ += '=';
  AppendTyped(Codes, codes.NextValue);
  std::array<char, std::size_t{6} * udtTactisBaseElement_TACTIS_SCANCODE::Size> text{};
  char* put = text.data();
  std::size_t count = codes.Value.size();
  while (count > 0 && codes.Value[count - 1] == 0) --count;
  bool apart = true;
  for (std::size_t index = 0; index < count;) {
    const std::uint8_t byte = codes.Value[index];
    std::size_t end = index + 1;
    while (end < count && codes.Value[end] == byte) ++end;
    const std::size_t run = end - index >= ShortestRun ? end - index : 1;
    if (apart) *put++ = ' ';
    *put++ = ascii::HexDigits[byte >> 4U];
    *put++ = ascii::HexDigits[byte & 0xFU];
    apart = run > 1;
    if (apart) {
      *put++ = '*';
      put = std::to_chars(put, text.data() + text.size(), run).ptr;
    }
    index += run;
  }
  out_.append(text.data(), put);
}

}  // namespace plexel

#include <array>
#include <charconv>
#include <unordered_set>

#include "files/project_file.h"
#include "files/project_syntax.h"
#include "files/project_text.h"
#include "platform/failure.h"

namespace plexel {

namespace {

using namespace project_syntax;

/// What an ordinary element needs in the file.
constexpr std::size_t UsualBytes = 768;
/// So many equal bytes are written as one run.
constexpr std::size_t ShortestRun = 4;

class Writer {
 public:
  explicit Writer(const Project& project) : project_(project) { out_.reserve(project.elements.size() * UsualBytes); }

  std::string Write() {
    Add("[PROJECT]\nFormat=1\nMarks=\x8B\x9B\nPanel=");
    AddText(project_.panel);
    EndLine();
    Add("Elements=");
    AddNumber(project_.elements.size());
    EndLine();
    std::unordered_set<std::string_view> places;
    places.reserve(project_.elements.size());
    for (const ProjectElement& element : project_.elements) {
      if (!places.insert(element.place).second)
        Refuse(FailureKind::Index, "the place " + element.place + " stands twice");
      AddElement(element);
    }
    Add("\n[END]\n");
    return std::move(out_);
  }

 private:
  [[noreturn]] static void Refuse(FailureKind kind, const std::string& reason) { throw Failure(kind, reason); }

  void Add(std::string_view text) { out_ += text; }
  void EndLine() {
    if (out_.size() - lineStart_ > TextFile::LongestLine) Refuse(FailureKind::Overflow, "a text is too long");
    out_ += '\n';
    lineStart_ = out_.size();
  }

  template <typename Number>
  void AddNumber(Number number) {
    char digits[32];
    const auto [end, error] = std::to_chars(digits, digits + sizeof(digits), number);
    if (error == std::errc()) out_.append(digits, end);
  }

  void AddText(std::string_view text, std::string_view reserved = {}) { AppendProjectText(out_, text, reserved); }

  void AddKey(std::string_view key) {
    if (key.empty()) Refuse(FailureKind::Index, "a value has no key");
    AddText(key, BagKeyNumber(key) < BagKeyCount ? std::string_view() : "=[];#");
    out_ += '=';
  }

  void AddElement(const ProjectElement& element) {
    Add("\n[ELEMENT ");
    AddText(element.place, "]");
    out_ += ']';
    EndLine();
    element.bag.ForEach([this](std::string_view key, const BagValue& value) {
      AddKey(key);
      std::visit([this](const auto& typed) { AddValue(typed); }, value);
      EndLine();
    });
    for (const SavedCodes& saved : element.codes) {
      if (saved.buffer < 0 || static_cast<std::size_t>(saved.buffer) >= BufferNames.size()) {
        Refuse(FailureKind::Index, "there is no code buffer " + std::to_string(saved.buffer));
      }
      Add(BufferNames[static_cast<std::size_t>(saved.buffer)]);
      AddCodes(saved.codes);
      EndLine();
    }
  }

  template <typename Number>
  void AddTyped(std::string_view type, Number number) {
    Add(type);
    out_ += ' ';
    AddNumber(number);
  }
  void AddValue(std::int16_t value) { AddTyped(Int16, value); }
  void AddValue(std::int32_t value) { AddTyped(Int32, value); }
  void AddValue(std::uint8_t value) { AddTyped(UInt8, static_cast<unsigned>(value)); }
  void AddValue(BagBoolean value) { AddTyped(BooleanType, value.value); }
  void AddValue(double value) { AddTyped(Double, value); }
  void AddValue(const std::string& value) {
    Add(Text);
    if (!value.empty()) out_ += ' ';
    AddText(value);
  }

  /// The last index in use, then the bytes up to the last that is not 0, with runs of equal ones shortened.
  void AddCodes(const udtTactisBaseElement_TACTIS_SCANCODE& codes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    out_ += '=';
    AddTyped(Codes, codes.NextValue);
    std::array<char, 6 * udtTactisBaseElement_TACTIS_SCANCODE::Size> text;
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
      *put++ = digits[byte >> 4U];
      *put++ = digits[byte & 0xFU];
      apart = run > 1;
      if (apart) {
        *put++ = '*';
        put = std::to_chars(put, text.data() + text.size(), run).ptr;
      }
      index += run;
    }
    out_.append(text.data(), put);
  }

  const Project& project_;
  std::string out_;
  std::size_t lineStart_ = 0;
};

}  // namespace

std::string FormatProject(const Project& project) { return Writer(project).Write(); }

}  // namespace plexel

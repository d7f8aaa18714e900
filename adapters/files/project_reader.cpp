#include "files/project_reader.h"

#include <algorithm>
#include <array>
#include <optional>

#include "files/number_text.h"
#include "files/project_syntax.h"
#include "files/project_text.h"
#include "forms/ascii.h"
#include "platform/failure.h"

namespace plexel {

namespace {

using namespace project_syntax;

/// Reads the bytes of a code buffer: pairs of digits, a pair with "*COUNT" for a run, blanks between them as wanted.
bool ReadBytes(std::string_view text, udtTactisBaseElement_TACTIS_SCANCODE& codes) {
  std::size_t count = 0;
  while (!text.empty()) {
    if (text.front() == ' ') {
      text.remove_prefix(1);
      continue;
    }
    const std::uint8_t high = ascii::HexValue(text.front());
    const std::uint8_t low = text.size() > 1 ? ascii::HexValue(text[1]) : ascii::NoDigit;
    if (high == ascii::NoDigit || low == ascii::NoDigit) return false;
    text.remove_prefix(2);
    if (count == codes.Value.size()) return false;
    const auto byte = static_cast<std::uint8_t>(high * 16 + low);
    codes.Value[count++] = byte;
    if (text.empty() || text.front() != '*') continue;
    const std::string_view digits = text.substr(1, text.find(' ') - 1);
    const auto run = ParseNumber<std::size_t>(digits, 1, codes.Value.size());
    if (!run || count + *run - 1 > codes.Value.size()) return false;
    text.remove_prefix(1 + digits.size());
    std::fill_n(codes.Value.begin() + static_cast<std::ptrdiff_t>(count), *run - 1, byte);
    count += *run - 1;
  }
  return true;
}

}  // namespace

ProjectReader::ProjectReader(const TextFile& file) : file_(file), lines_(file.Lines()) {
  if (file_.HasUtf8Mark()) Refuse("the file has been saved as UTF-8; a project is Windows-1252");
  ReadHeader();
}

void ProjectReader::Refuse(const std::string& reason) const {
  throw file_.Error(std::max<std::size_t>(lines_.Number(), 1), reason);
}

/// Takes the next line that is neither empty nor a comment.
bool ProjectReader::NextLine() {
  while (lines_.Next(line_)) {
    if (line_.empty() || line_.front() == ';' || line_.front() == '#') continue;
    if (line_.front() == ' ' || line_.back() == ' ' || line_.front() == '\t' || line_.back() == '\t') {
      line_ = TrimBlanks(line_);
      if (line_.empty()) continue;
    }
    return true;
  }
  line_ = {};
  return false;
}

std::string_view ProjectReader::SectionName() const {
  if (line_.back() != ']') Refuse("a section must end in \"]\"");
  return line_.substr(1, line_.size() - 2);
}

/// Parts the line at its '='.
void ProjectReader::SplitKey() {
  const std::size_t equals = line_.find('=');
  if (equals == std::string_view::npos) Refuse("\"" + Excerpt(line_) + "\" is no NAME=VALUE");
  key_ = line_.substr(0, equals);
  value_ = line_.substr(equals + 1);
}

std::string ProjectReader::Decode(std::string_view bytes) const {
  try {
    return ReadProjectText(bytes);
  } catch (const Failure& failure) {
    Refuse(failure.what());
  }
}

void ProjectReader::ReadHeader() {
  if (!NextLine() || !AtSection() || SectionName() != ProjectSection)
    Refuse("this is no project: [PROJECT] is missing");
  bool format = false, marks = false, panel = false, carries = false;
  bool more = NextLine();
  for (; more && !AtSection(); more = NextLine()) {
    SplitKey();
    if (key_ == FormatKey && !format) {
      carries = CarriesPanel();
      format = true;
    } else if (key_ == MarksKey && !marks) {
      if (value_ != Marks) Refuse("the file has been saved in another code page; a project is Windows-1252");
      marks = true;
    } else if (key_ == PanelKey && !panel) {
      panel_ = Decode(value_);
      panel = true;
    } else if (key_ == CountKey && !count_) {
      count_ = ParseNumber<std::uint32_t>(value_);
      if (!count_) Refuse("\"" + Excerpt(value_) + "\" is no number of elements");
    } else {
      Refuse("\"" + Excerpt(key_) + "\" is unknown here or stands twice");
    }
  }
  if (!format || !marks || !panel || !count_) Refuse("Format, Marks, Panel and Elements must stand below [PROJECT]");
  if (carries) more = ReadPanelText(more);
  places_ = PlaceSet(std::min<std::size_t>(*count_, file_.Text().size() / ElementSection.size()));
  TakeSection(more);
}

bool ProjectReader::CarriesPanel() const {
  if (value_ == PlainFormat || value_ == PanelFormat) return value_ == PanelFormat;
  if (const auto number = ParseNumber<std::uint32_t>(value_);
      number && std::to_string(*number) == value_ && *number > 2) {
    throw NewerFormat(
        file_.Error(lines_.Number(), "the format " + std::string(value_) + " is newer than this program, which knows " +
                                         std::string(PlainFormat) + " and " + std::string(PanelFormat)),
        *number);
  }
  Refuse("the format \"" + Excerpt(value_) + "\" is unknown");
}

bool ProjectReader::ReadPanelText(bool more) {
  if (!more || SectionName() != PanelSection) Refuse("[PANEL] is missing");
  for (more = NextLine(); more && !AtSection(); more = NextLine()) {
    SplitKey();
    if (key_ != LineKey) Refuse("\"" + Excerpt(key_) + "\" is unknown here");
    panelText_.append(Decode(value_)) += '\n';
  }
  if (panelText_.empty()) Refuse("[PANEL] is empty");
  return more;
}

/// Stands at a section or at the end of the file.
void ProjectReader::TakeSection(bool more) {
  if (!more) Refuse("the file is cut off: [END] is missing");
  const std::string_view name = SectionName();
  if (name == EndSection) {
    ended_ = true;
    CheckEnd();
    return;
  }
  if (!name.starts_with(ElementSection)) Refuse("there is no section [" + Excerpt(name) + "]");
  if (given_ == *count_) RefuseCount("more");
  const std::string_view place = name.substr(ElementSection.size());
  place_ = Decode(place);
  if (!places_.Insert(place_)) Refuse("the place " + Excerpt(place) + " stands twice");
}

void ProjectReader::CheckEnd() {
  if (given_ != *count_) RefuseCount("fewer");
  if (NextLine()) Refuse("something stands behind [END]");
  const char last = file_.Text().back();
  if (last != '\n' && last != '\r') Refuse("the file ends in the middle of a line");
}

bool ProjectReader::Next(ProjectElement& element) {
  if (ended_) return false;
  ++given_;
  element.place = std::move(place_);
  element.bag.Clear();
  element.codes.clear();
  bool more = NextLine();
  for (; more && !AtSection(); more = NextLine()) {
    SplitKey();
    ReadValue(element);
  }
  TakeSection(more);
  return true;
}

template <typename Type>
Type ProjectReader::Number(std::string_view text) const {
  const std::optional<Type> number = ParseNumber<Type>(text);
  if (!number) Refuse("\"" + Excerpt(text) + "\" is no number of its type");
  return *number;
}

void ProjectReader::ReadValue(ProjectElement& element) {
  const std::size_t blank = std::min(value_.find(' '), value_.size());
  const std::string_view type = value_.substr(0, blank);
  const std::string_view text = value_.substr(std::min(blank + 1, value_.size()));
  if (type == Int32) {
    Store(element, Number<std::int32_t>(text));
  } else if (type == Text) {
    Store(element, Decode(text));
  } else if (type == Int16) {
    Store(element, Number<std::int16_t>(text));
  } else if (type == BooleanType) {
    Store(element, Boolean::Raw(Number<std::int16_t>(text)));
  } else if (type == UInt8) {
    Store(element, Number<std::uint8_t>(text));
  } else if (type == Double) {
    Store(element, Number<double>(text));
  } else if (type == Codes) {
    StoreCodes(element, text);
  } else {
    Refuse("\"" + Excerpt(type) + "\" is no type of a value");
  }
}

void ProjectReader::Store(ProjectElement& element, BagValue&& value) {
  const std::size_t number = StoredKeyNumber(key_);
  const bool isNew = number < StoredKeyCount ? element.bag.StoreNew(number, std::move(value))
                                             : element.bag.StoreNew(OtherKey(), std::move(value));
  if (!isNew) Refuse("\"" + Excerpt(key_) + "\" stands twice");
}

std::string ProjectReader::OtherKey() const {
  if (key_.empty()) Refuse("a value has no key");
  return Decode(key_);
}

void ProjectReader::StoreCodes(ProjectElement& element, std::string_view text) {
  const auto name = std::find(BufferNames.begin(), BufferNames.end(), key_);
  if (name == BufferNames.end()) Refuse("there is no code buffer \"" + Excerpt(key_) + "\"");
  const auto buffer = static_cast<std::int32_t>(name - BufferNames.begin());
  const bool stored = std::any_of(element.codes.begin(), element.codes.end(),
                                  [buffer](const SavedCodes& other) { return other.buffer == buffer; });
  if (stored) Refuse("\"" + Excerpt(key_) + "\" stands twice");
  const std::size_t blank = std::min(text.find(' '), text.size());
  const auto next = ParseNumber<std::int32_t>(text.substr(0, blank), 0, udtTactisBaseElement_TACTIS_SCANCODE::Size - 1);
  if (!next) Refuse("the last index of a code buffer must be a number from 0 to 88");
  if (element.codes.empty()) element.codes.reserve(BufferNames.size());
  SavedCodes& saved = element.codes.emplace_back();
  saved.buffer = buffer;
  saved.codes.NextValue = *next;
  if (!ReadBytes(text.substr(blank), saved.codes)) Refuse("a code buffer is up to 89 bytes of two digits each");
}

void ProjectReader::RefuseCount(std::string_view how) const {
  Refuse("the header tells of " + std::to_string(*count_) + " elements, but there are " + std::string(how));
}

}  // namespace plexel

#include "scancodes/code_buffer.h"

#include <algorithm>
#include <limits>
#include <string>

#include "platform/failure.h"
#include "scancodes/code_type.h"
#include "scancodes/key_translation.h"

namespace plexel {

namespace {

using Buffer = udtTactisBaseElement_TACTIS_SCANCODE;

template <typename Array>
auto& At(Array& array, std::int32_t index) {
  if (index < 0 || static_cast<std::size_t>(index) >= array.size()) {
    throw Failure(FailureKind::Index, "no code at index " + std::to_string(index));
  }
  return array[static_cast<std::size_t>(index)];
}

void AppendByte(Buffer& code, std::int32_t value) {
  if (code.NextValue == std::numeric_limits<std::int32_t>::max()) {
    throw Failure(FailureKind::Overflow, "NextValue cannot be raised");
  }
  ++code.NextValue;
  std::uint8_t& byte = At(code.Value, code.NextValue);
  if (value < 0 || value > 0xFF) throw Failure(FailureKind::Overflow, std::to_string(value) + " is no byte");
  byte = static_cast<std::uint8_t>(value);
}

void AppendMakeCodes(Buffer& code, const CodeSequence& make) {
  for (std::int32_t index = 0; index < make.length; ++index) {
    const std::int32_t value = At(make.codes, index);
    if (value != Buffer::EndMark) AppendByte(code, value);
  }
}

/// Appends the elements from first to last, both included.
void AppendRange(Buffer& code, const CodeSequence& from, std::int32_t first, std::int32_t last) {
  for (std::int32_t index = first; index <= last; ++index) AppendByte(code, At(from.codes, index));
}

/// Sub-sequences go in reverse order. Each range takes the element behind it along, and the end mark then overwrites
/// the very last one.
void AppendBreakCodes(Buffer& code, const CodeSequence& breaking) {
  std::int32_t last = breaking.length;
  for (std::int32_t index = std::max(last, 0); index-- > 0;) {
    if (At(breaking.codes, index) != Buffer::EndMark) continue;
    AppendRange(code, breaking, index, last);
    last = index;
  }
  AppendRange(code, breaking, 0, last);
  At(code.Value, code.NextValue) = Buffer::EndMark;
}

std::int32_t CountEndMarks(const Buffer& code) {
  std::int32_t count = 0;
  for (std::int32_t index = 0; index <= code.NextValue; ++index) {
    if (At(code.Value, index) == Buffer::EndMark) ++count;
  }
  return count;
}

}  // namespace

std::int32_t CountGroupEnds(std::int32_t lngLayer, const udtTactisBaseElement_ScanCodeInfo& udtBuffer) {
  const Buffer* press = PressBuffer(udtBuffer, lngLayer);
  const Buffer* release = ReleaseBuffer(udtBuffer, lngLayer);
  if (press == nullptr) return 0;  // the layer has neither
  return CountEndMarks(*press) + CountEndMarks(*release);
}

void AppendCodeGroup(Buffer& udtCode, const KeyCodes& codes, std::int32_t lngCodeType, std::int32_t /*lngUnused*/) {
  if (lngCodeType == FromDialog) lngCodeType = GetSelectedCodeType();
  switch (lngCodeType) {
    case MakeAndBreak:
      AppendMakeCodes(udtCode, codes.make);
      AppendBreakCodes(udtCode, codes.breaking);
      break;
    case MakeOnly:
      AppendMakeCodes(udtCode, codes.make);
      AppendByte(udtCode, Buffer::EndMark);
      break;
    case BreakOnly:
      AppendBreakCodes(udtCode, codes.breaking);
      break;
    default:
      break;
  }
}

bool RemoveFirstCodeGroup(Buffer& udtCode) {
  if (udtCode.NextValue < 1) return false;
  std::int32_t end = 1;
  while (end <= udtCode.NextValue && At(udtCode.Value, end) != Buffer::EndMark) ++end;
  if (end > udtCode.NextValue) return false;
  if (end == udtCode.NextValue) {
    udtCode.Value.fill(Buffer::EndMark);
    udtCode.NextValue = 0;
    return true;
  }
  for (std::int32_t index = end; index <= udtCode.NextValue; ++index) {
    udtCode.Value[static_cast<std::size_t>(index - end)] = At(udtCode.Value, index);
  }
  udtCode.NextValue -= end;
  for (std::int32_t index = udtCode.NextValue; index <= udtCode.NextValue + end; ++index) {
    At(udtCode.Value, index) = Buffer::EndMark;
  }
  return true;
}

void RemoveLastCodeGroup(Buffer& udtCode) {
  for (std::int32_t index = std::max(udtCode.NextValue, 0); index-- > 0;) {
    std::uint8_t& byte = At(udtCode.Value, index);
    if (byte == Buffer::EndMark) {
      udtCode.NextValue = index;
      return;
    }
    byte = Buffer::EndMark;
  }
}

}  // namespace plexel

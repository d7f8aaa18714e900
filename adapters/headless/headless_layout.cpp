#include "headless/headless_layout.h"

#include <algorithm>
#include <array>

namespace plexel {

KeyboardLayout::Handle HeadlessLayout::Current() {
  faults_.Check(Fault::Layout);
  return layout_->Current();
}

std::int32_t HeadlessLayout::ToUnicode(std::int32_t virtualKey, std::int32_t scanCode, char16_t* text,
                                       std::int32_t capacity, Handle layout) {
  faults_.Check(Fault::Layout);
  return Ask(virtualKey, scanCode, text, capacity, layout);
}

std::int32_t HeadlessLayout::ToAscii(std::int32_t virtualKey, std::int32_t scanCode, std::uint16_t& result,
                                     Handle layout) {
  faults_.Check(Fault::Layout);
  const auto answer = answers_.find(virtualKey);
  if (answer == answers_.end()) return layout_->ToAscii(virtualKey, scanCode, result, layout);
  if (!answer->second.text.empty()) result = answer->second.text.front();
  return answer->second.result;
}

void HeadlessLayout::KeyText(std::int32_t virtualKey, std::int32_t result, std::u16string text) {
  answers_[virtualKey] = {result, std::move(text)};
}

char16_t HeadlessLayout::Typed(std::int32_t virtualKey, std::int32_t scanCode) {
  std::array<char16_t, 16> text{};
  const std::int32_t count =
      Ask(virtualKey, scanCode, text.data(), static_cast<std::int32_t>(text.size()), layout_->Current());
  return count >= 1 ? text[0] : u'\0';
}

std::int32_t HeadlessLayout::Ask(std::int32_t virtualKey, std::int32_t scanCode, char16_t* text, std::int32_t capacity,
                                 Handle layout) {
  const auto answer = answers_.find(virtualKey);
  if (answer == answers_.end()) return layout_->ToUnicode(virtualKey, scanCode, text, capacity, layout);
  const std::u16string& given = answer->second.text;
  std::copy_n(given.begin(), std::min(given.size(), static_cast<std::size_t>(std::max(capacity, 0))), text);
  return answer->second.result;
}

}  // namespace plexel

#pragma once

#include "platform/keyboard.h"

namespace plexel {

/// A small fixed keyboard layout: letters, digits and punctuation of a US keyboard, and the characters of the number
/// pad. Every other key has no character. It stands in where no layout of a desktop is wanted.
class SampleLayout : public KeyboardLayout {
 public:
  Handle Current() override { return 1; }
  std::int32_t ToUnicode(std::int32_t virtualKey, std::int32_t scanCode, char16_t* text, std::int32_t capacity,
                         Handle layout) override;
  std::int32_t ToAscii(std::int32_t virtualKey, std::int32_t scanCode, std::uint16_t& result, Handle layout) override;
};

}  // namespace plexel

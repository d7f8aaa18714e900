#pragma once

#include <map>
#include <string>

#include "headless/faults.h"
#include "headless/sample_layout.h"
#include "platform/keyboard.h"

namespace plexel {

/// A keyboard layout given from outside, with answers of its own for single keys. Without one it is a SampleLayout.
class HeadlessLayout : public KeyboardLayout {
 public:
  /// The faults outlive it.
  explicit HeadlessLayout(Faults& faults) : faults_(faults) {}
  Handle Current() override;
  std::int32_t ToUnicode(std::int32_t virtualKey, std::int32_t scanCode, char16_t* text, std::int32_t capacity,
                         Handle layout) override;
  std::int32_t ToAscii(std::int32_t virtualKey, std::int32_t scanCode, std::uint16_t& result, Handle layout) override;

  /// The layout that answers from now on; it must outlive this object.
  void Use(KeyboardLayout& layout) { layout_ = &layout; }
  /// What a virtual key answers from now on, whatever the layout says: the result of both questions and the characters.
  void KeyText(std::int32_t virtualKey, std::int32_t result, std::u16string text);
  /// The character that a key types when nothing fails; 0 for none and for a dead key.
  char16_t Typed(std::int32_t virtualKey, std::int32_t scanCode);

 private:
  struct Answer {
    std::int32_t result = 0;
    std::u16string text;
  };
  std::int32_t Ask(std::int32_t virtualKey, std::int32_t scanCode, char16_t* text, std::int32_t capacity,
                   Handle layout);

  Faults& faults_;
  SampleLayout sample_;
  KeyboardLayout* layout_ = &sample_;
  std::map<std::int32_t, Answer> answers_;
};

}  // namespace plexel

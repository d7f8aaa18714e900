#include "forms/controls.h"

#include <algorithm>

#include "forms/characters.h"

namespace plexel {

void TextBox::Edit(std::string value, int selStart) {
  if (maxLength_ > 0) {
    const std::vector<std::string_view> parts = characters::Split(value);
    if (parts.size() > static_cast<std::size_t>(maxLength_)) {
      const std::string_view firstLeftOut = parts[static_cast<std::size_t>(maxLength_)];
      value.resize(static_cast<std::size_t>(firstLeftOut.data() - value.data()));
    }
  }
  const bool changed = value != text_;
  text_ = std::move(value);
  SelStart(selStart);
  if (changed) Raise(OnChange);
}

int TextBox::TextLength() const { return characters::Count(text_); }

void TextBox::SelStart(int value) { selStart_ = std::clamp(value, 0, TextLength()); }

std::vector<TextSlot> TextBox::Texts() {
  return {{text_, [this](std::string text) { Text(std::move(text)); }}};
}

void TextBox::DescribeMore(Description& description) const {
  description.emplace_back("Text", text_);
  description.emplace_back("MaxLength", static_cast<std::int32_t>(maxLength_));
  description.emplace_back("SelStart", static_cast<std::int32_t>(selStart_));
  description.emplace_back("Locked", locked_);
  description.emplace_back("BackColor", backColor_);
  description.emplace_back("ForeColor", foreColor_);
}

}  // namespace plexel

#include "forms/controls.h"

#include "forms/form.h"
#include "platform/failure.h"

namespace plexel {

std::vector<TextSlot> CaptionControl::Texts() {
  return {{caption_, [this](std::string text) { Caption(std::move(text)); }}};
}

void CaptionControl::DescribeMore(Description& description) const { description.emplace_back("Caption", caption_); }

bool CommandButton::Default() const { return Owner().DefaultButton() == this; }

void CommandButton::Default(bool value) {
  if (value) {
    Owner().defaultButton_ = this;
  } else if (Default()) {
    Owner().defaultButton_ = nullptr;
  }
}

bool CommandButton::Cancel() const { return Owner().CancelButton() == this; }

void CommandButton::Cancel(bool value) {
  if (value) {
    Owner().cancelButton_ = this;
  } else if (Cancel()) {
    Owner().cancelButton_ = nullptr;
  }
}

void CommandButton::DescribeMore(Description& description) const {
  CaptionControl::DescribeMore(description);
  description.emplace_back("Default", Default());
  description.emplace_back("Cancel", Cancel());
  description.emplace_back("Picture", picture_);
}

std::vector<OptionButton*> OptionButton::Group() const {
  std::vector<OptionButton*> group;
  for (Control* control : Owner().ControlsInTabOrder()) {
    if (control->Kind() == ControlKind::OptionButton && control->Container() == Container() &&
        control->Page() == Page()) {
      group.push_back(static_cast<OptionButton*>(control));
    }
  }
  return group;
}

void OptionButton::Value(bool value) {
  const bool newlySet = value && !value_;
  if (value) {
    for (OptionButton* member : Group()) member->value_ = false;
  }
  value_ = value;
  if (newlySet) Raise(OnClick);
}

void OptionButton::DescribeMore(Description& description) const {
  CaptionControl::DescribeMore(description);
  description.emplace_back("Value", value_);
}

void PictureBox::DescribeMore(Description& description) const {
  description.emplace_back("Picture", picture_);
  description.emplace_back("Stretch", stretch_);
}

TabStrip::TabStrip(Form& form, std::string_view name, int pages)
    : Control(form, ControlKind::TabStrip, name), pages_(static_cast<std::size_t>(pages)) {}

const TabStrip::PageState& TabStrip::At(int page) const {
  if (page < 0 || page >= Pages()) {
    throw Failure(FailureKind::Index, FullName() + " has no page " + std::to_string(page));
  }
  return pages_[static_cast<std::size_t>(page)];
}

TabStrip::PageState& TabStrip::At(int page) { return const_cast<PageState&>(std::as_const(*this).At(page)); }

void TabStrip::Tab(int page) {
  At(page);
  tab_ = page;
}

const std::string& TabStrip::TabCaption(int page) const { return At(page).caption; }
void TabStrip::TabCaption(int page, std::string caption) { At(page).caption = std::move(caption); }
bool TabStrip::TabEnabled(int page) const { return At(page).enabled; }
void TabStrip::TabEnabled(int page, bool value) { At(page).enabled = value; }

std::vector<TextSlot> TabStrip::Texts() {
  std::vector<TextSlot> texts;
  texts.reserve(static_cast<std::size_t>(Pages()));
  for (int page = 0; page < Pages(); ++page) {
    texts.push_back({TabCaption(page), [this, page](std::string text) { TabCaption(page, std::move(text)); }});
  }
  return texts;
}

void TabStrip::DescribeMore(Description& description) const {
  std::vector<std::string> captions;
  std::vector<bool> enabled;
  for (const PageState& page : pages_) {
    captions.push_back(page.caption);
    enabled.push_back(page.enabled);
  }
  description.emplace_back("Tab", static_cast<std::int32_t>(tab_));
  description.emplace_back("TabCaption", std::move(captions));
  description.emplace_back("TabEnabled", std::move(enabled));
}

std::vector<TextSlot> StatusBar::Texts() {
  return {{text_, [this](std::string text) { SimpleText(std::move(text)); }}};
}

void StatusBar::DescribeMore(Description& description) const { description.emplace_back("SimpleText", text_); }

const std::string& ImageList::Picture(const std::string& key) const {
  const auto entry = pictures_.find(key);
  if (entry == pictures_.end()) throw Failure(FailureKind::Index, FullName() + " has no picture \"" + key + '"');
  return entry->second;
}

void ImageList::DescribeMore(Description& description) const {
  std::vector<std::string> keys;
  keys.reserve(pictures_.size());
  for (const auto& [key, picture] : pictures_) keys.push_back(key);
  description.emplace_back("List", std::move(keys));
}

void Shape::DescribeMore(Description& description) const { description.emplace_back("BackColor", backColor_); }

}  // namespace plexel

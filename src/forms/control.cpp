#include "forms/control.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "forms/form.h"
#include "platform/failure.h"

namespace plexel {

namespace {

/// What the kinds have beside their own properties.
struct KindTraits {
  ControlKind kind;
  std::string_view name;
  bool placed, canBeDisabled, canBeHidden, helped;
};

constexpr auto Kinds = std::to_array<KindTraits>({
    {ControlKind::CommandButton, "CommandButton", true, true, true, true},
    {ControlKind::OptionButton, "OptionButton", true, true, true, true},
    {ControlKind::ComboBox, "ComboBox", true, true, true, true},
    {ControlKind::TextBox, "TextBox", true, true, true, true},
    {ControlKind::Label, "Label", true, true, true, true},
    {ControlKind::Picture, "Picture", true, true, true, true},
    {ControlKind::Frame, "Frame", true, true, true, true},
    {ControlKind::TabStrip, "TabStrip", true, true, true, true},
    {ControlKind::Grid, "Grid", true, true, true, true},
    {ControlKind::StatusBar, "StatusBar", true, true, true, true},
    {ControlKind::Menu, "Menu", false, true, true, false},
    {ControlKind::ImageList, "ImageList", false, false, false, false},
    {ControlKind::Shape, "Shape", true, false, true, false},
});

consteval bool InOrder() {
  for (std::size_t i = 0; i < Kinds.size(); ++i) {
    if (Kinds[i].kind != static_cast<ControlKind>(i)) return false;
  }
  return true;
}
static_assert(InOrder());

const KindTraits& TraitsOf(ControlKind kind) { return Kinds[static_cast<std::size_t>(kind)]; }

}  // namespace

std::string_view KindName(ControlKind kind) { return TraitsOf(kind).name; }

Control::Control(Form& form, ControlKind kind, std::string_view name, int index)
    : form_(form), kind_(kind), name_(name), index_(index), tabIndex_(static_cast<int>(form.controls_.size())) {
  const auto sameName = [&](const Control* other) { return other->name_ == name_ && other->index_ == index_; };
  if (std::any_of(form.controls_.begin(), form.controls_.end(), sameName)) {
    throw std::logic_error(form.Name() + " has two controls named " + FullName());
  }
  form.controls_.push_back(this);
}

std::string Control::FullName() const { return index_ < 0 ? name_ : name_ + '(' + std::to_string(index_) + ')'; }

void Control::Place(float left, float top, float width, float height) {
  left_ = left;
  top_ = top;
  width_ = width;
  height_ = height;
}

void Control::OnPage(TabStrip& strip, int page) {
  if (page < 0 || page >= strip.Pages()) {
    throw Failure(FailureKind::Index, strip.FullName() + " has no page " + std::to_string(page));
  }
  container_ = &strip;
  page_ = page;
}

const TabStrip* Control::Strip() const { return page_ < 0 ? nullptr : static_cast<const TabStrip*>(container_); }

bool Control::Shown() const {
  for (const Control* control = this; control != nullptr; control = control->container_) {
    if (!control->visible_) return false;
    if (control->Strip() != nullptr && control->Strip()->Tab() != control->page_) return false;
  }
  return true;
}

std::string_view Control::OwnHindrance() const {
  if (!TraitsOf(kind_).canBeHidden) return "has no face";
  bool enabled = true;
  for (const Control* control = this; control != nullptr; control = control->container_) {
    if (!control->visible_) return "is hidden";
    enabled = enabled && control->enabled_;
  }
  return enabled ? "" : "is disabled";
}

std::string_view Control::Hindrance() const {
  if (const std::string_view own = OwnHindrance(); !own.empty()) return own;
  for (const Control* control = this; control != nullptr; control = control->container_) {
    if (control->Strip() == nullptr) continue;
    if (control->Strip()->Tab() != control->page_) return "is on a page that is not in front";
    if (!control->Strip()->TabEnabled(control->page_)) return "is on a page that is off";
  }
  return {};
}

void Control::SetFocus() { form_.Focus(this); }

bool Control::HasFocus() const { return form_.Focus() == this; }

Description Control::Describe() const {
  const KindTraits& traits = TraitsOf(kind_);
  Description description;
  const auto add = [&](const char* name, PropertyValue value) { description.emplace_back(name, std::move(value)); };
  add("Kind", std::string(traits.name));
  if (traits.placed) {
    add("Left", static_cast<double>(left_));
    add("Top", static_cast<double>(top_));
    add("Width", static_cast<double>(width_));
    add("Height", static_cast<double>(height_));
  }
  if (traits.canBeDisabled) add("Enabled", enabled_);
  if (traits.canBeHidden) add("Visible", visible_);
  if (Focusable()) {
    add("TabStop", tabStop_);
    add("TabIndex", static_cast<std::int32_t>(tabIndex_));
  }
  if (traits.helped) {
    add("HelpContextID", helpContext_);
    add("ToolTipText", toolTip_);
  }
  DescribeMore(description);
  return description;
}

}  // namespace plexel

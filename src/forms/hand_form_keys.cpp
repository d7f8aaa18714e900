#include "forms/hand.h"

#include <algorithm>
#include <array>

#include "forms/acting.h"
#include "forms/caption.h"

namespace plexel {

namespace {

bool KeepsReturn(const Control& control) {
  if (control.Kind() == ControlKind::Grid) return true;
  return control.Kind() == ControlKind::TextBox && static_cast<const TextBox&>(control).MultiLine();
}

bool ParksFocus(const Control& control) {
  return control.Kind() == ControlKind::CommandButton && static_cast<const CommandButton&>(control).ParksFocus();
}

/// The tab strip whose pages the keys turn: the one around the control with the focus, else the first one.
TabStrip* StripFor(const Form& form, const Control* focus) {
  for (Control* around = focus == nullptr ? nullptr : focus->Container(); around != nullptr;
       around = around->Container()) {
    if (around->Kind() == ControlKind::TabStrip && around->Usable()) return static_cast<TabStrip*>(around);
  }
  const std::vector<Control*> order = form.ControlsInTabOrder();
  const auto strip = std::find_if(order.begin(), order.end(), [](const Control* control) {
    return control->Kind() == ControlKind::TabStrip && control->Usable();
  });
  return strip == order.end() ? nullptr : static_cast<TabStrip*>(*strip);
}

/// The next page that is on, round the strip; the page in front when there is no other.
int NextPage(const TabStrip& strip, bool back) {
  const int step = back ? strip.Pages() - 1 : 1;
  int page = strip.Tab();
  do {
    page = (page + step) % strip.Pages();
  } while (page != strip.Tab() && !strip.TabEnabled(page));
  return page;
}

bool ButtonAnswers(Hand& hand, Control& control, std::int16_t keyCode) {
  if (!LeadsTo(static_cast<CaptionControl&>(control).Caption(), keyCode)) return false;
  hand.Click(control);
  return true;
}

bool LabelAnswers(Hand& hand, Control& control, std::int16_t keyCode) {
  auto& label = static_cast<Label&>(control);
  if (!LeadsTo(label.Caption(), keyCode)) return false;
  if (label.Look() == LabelLook::Link) {
    hand.Click(label);
    return true;
  }
  if (label.Names() == nullptr || !label.Names()->CanTakeFocus()) return false;
  hand.Focus(*label.Names());
  return true;
}

bool FrameAnswers(Hand& hand, Control& control, std::int16_t keyCode) {
  if (!LeadsTo(static_cast<Frame&>(control).Caption(), keyCode)) return false;
  const std::vector<Control*> order = control.Owner().TabOrder();
  const auto first =
      std::find_if(order.begin(), order.end(), [&](const Control* inside) { return inside->Container() == &control; });
  if (first == order.end()) return false;
  hand.Focus(**first);
  return true;
}

bool StripAnswers(Hand& hand, Control& control, std::int16_t keyCode) {
  auto& strip = static_cast<TabStrip&>(control);
  for (int page = 0; page < strip.Pages(); ++page) {
    if (!strip.TabEnabled(page) || !LeadsTo(strip.TabCaption(page), keyCode)) continue;
    hand.Tab(strip, page);
    return true;
  }
  return false;
}

struct LetterAnswer {
  ControlKind kind;
  bool (*answers)(Hand& hand, Control& control, std::int16_t keyCode);
};

constexpr auto LetterAnswers = std::to_array<LetterAnswer>({
    {ControlKind::CommandButton, ButtonAnswers},
    {ControlKind::OptionButton, ButtonAnswers},
    {ControlKind::Label, LabelAnswers},
    {ControlKind::Frame, FrameAnswers},
    {ControlKind::TabStrip, StripAnswers},
});

bool Answers(Hand& hand, Control& control, std::int16_t keyCode) {
  if (!control.Usable()) return false;
  const auto* const answer = std::find_if(LetterAnswers.begin(), LetterAnswers.end(),
                                          [&](const LetterAnswer& one) { return one.kind == control.Kind(); });
  return answer != LetterAnswers.end() && answer->answers(hand, control, keyCode);
}

}  // namespace

bool Hand::FormTakes(Control* target, std::int16_t keyCode, std::int16_t shift) {
  const bool control = (shift & key::ControlBit) != 0, alt = (shift & key::AltBit) != 0;
  if (!control && !alt) return TakesPlain(target, keyCode, shift);
  if ((control && alt) || (target != nullptr && ParksFocus(*target))) return false;
  return control ? TurnsPage(target, keyCode, shift) : FollowsLetter(target, keyCode);
}

bool Hand::TakesPlain(Control* target, std::int16_t keyCode, std::int16_t shift) {
  if (keyCode == key::Tab) {
    Control* const next = form_.TabNeighbour((shift & key::ShiftBit) == 0);
    if (next != nullptr) form_.Focus(next);
    return true;
  }
  CommandButton* button = nullptr;
  if (keyCode == key::Escape) button = form_.CancelButton();
  if (keyCode == key::Return) {
    if (GetsKeys(target) && KeepsReturn(*target)) return false;
    const bool onButton = GetsKeys(target) && target->Kind() == ControlKind::CommandButton;
    button = onButton ? static_cast<CommandButton*>(target) : form_.DefaultButton();
  }
  if (button == nullptr || !button->Usable()) return false;
  Press(*button);
  return true;
}

bool Hand::TurnsPage(Control* target, std::int16_t keyCode, std::int16_t shift) {
  if (keyCode != key::Tab && keyCode != key::PageUp && keyCode != key::PageDown) return false;
  TabStrip* const strip = StripFor(form_, target);
  if (strip == nullptr) return false;
  const bool back = keyCode == key::PageUp || (keyCode == key::Tab && (shift & key::ShiftBit) != 0);
  const int page = NextPage(*strip, back);
  if (page != strip->Tab()) Tab(*strip, page);
  return true;
}

bool Hand::FollowsLetter(const Control* target, std::int16_t keyCode) {
  std::vector<Control*> order = form_.ControlsInTabOrder();
  const auto here = std::find(order.begin(), order.end(), target);
  if (here != order.end()) std::rotate(order.begin(), here + 1, order.end());
  return std::any_of(order.begin(), order.end(), [&](Control* control) { return Answers(*this, *control, keyCode); });
}

}  // namespace plexel

#include "wizard/wizard_session.h"

#include <algorithm>

#include "headless/key_road.h"
#include "services/conversion.h"

namespace plexel {

WizardSession::WizardSession(enumTactisBaseElementType type) {
  Speak();
  platform.Messages().onShow = [](const std::string&, std::int32_t, const std::string&) { return MessageAnswer::No; };
  platform.Modal().onShown = [this](Form& form, Window* owner) {
    shown.push_back(form.Name() + " over " + (owner == nullptr ? "nothing" : owner->WindowName()) + " at " +
                    SingleToText(form.Left()) + "," + SingleToText(form.Top()));
  };
  platform.Modal().onClosed = [this](Form& form) { closed.push_back(form.Name()); };
  platform.Modal().onRun = [this](Form& form) {
    if (acts_.empty()) {
      ADD_FAILURE() << "nobody closes " << form.Name();
      form.Unload();
      return;
    }
    const Act act = std::move(acts_.front());
    acts_.pop_front();
    act();
  };
  element->ElementType(type);
  element->WizardOn(True);
  element->ParentWindow(std::make_shared<HostForm>());
  host.Forget();
}

WizardSession& WizardSession::Then(Act act) {
  acts_.push_back(std::move(act));
  return *this;
}

WizardSession& WizardSession::Click(std::string control) {
  return Then([this, control] { Hand(Top()).Click(Get<Control>(control)); });
}

WizardSession& WizardSession::DblClick(std::string control) {
  return Then([this, control] { Hand(Top()).DblClick(Get<Control>(control)); });
}

WizardSession& WizardSession::Select(std::string combo, std::string entry) {
  return Then([this, combo, entry] {
    auto& box = Get<ComboBox>(combo);
    const auto place = std::find(box.Items().begin(), box.Items().end(), entry);
    Hand(Top()).Select(box, static_cast<int>(place - box.Items().begin()));
  });
}

WizardSession& WizardSession::Close() {
  return Then([this] { Hand(Top()).Close(); });
}

WizardSession& WizardSession::KeyDown(std::int16_t keyCode, std::int16_t shift) {
  return Then([this, keyCode, shift] { Hand(Top()).KeyDown(keyCode, shift); });
}

WizardSession& WizardSession::Stroke(std::int32_t virtualKey, std::int32_t scanCode) {
  return Then([this, virtualKey, scanCode] {
    KeyRoad(platform).Send({virtualKey, scanCode, false, true});
    KeyRoad(platform).Send({virtualKey, scanCode, false, false});
  });
}

WizardSession& WizardSession::ClickFails(std::string control) {
  return Then([this, control] { EXPECT_THROW(Hand(Top()).Click(Get<Control>(control)), Failure); });
}

void WizardSession::Open() {
  Run([this] { element->OpenConfigurationDialog(); });
}

void WizardSession::OpenProperties() {
  Run([this] { element->OpenPropertiesDialog(); });
}

void WizardSession::Run(const Act& open) {
  open();
  EXPECT_TRUE(acts_.empty()) << acts_.size() << " acts found no form";
  EXPECT_EQ(platform.Modal().Topmost(), nullptr);
  acts_.clear();
}

Form& WizardSession::Top() {
  Form* const form = platform.Modal().Topmost();
  if (form == nullptr) throw std::logic_error("no form is shown");
  return *form;
}

udtTactisBaseElement_ScanCodeInfo WizardSession::FilledRecord() {
  auto record = Record();
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    PressBuffer(record, layer)->Value.fill(0x1C);
    PressBuffer(record, layer)->NextValue = 7;
    ReleaseBuffer(record, layer)->Value.fill(0x2C);
    ReleaseBuffer(record, layer)->NextValue = 8;
  }
  return record;
}

bool WizardSession::BuffersAreZero() {
  const auto record = Record();
  auto zero = record;
  ZeroAllBuffers(zero);
  return record == zero;
}

std::vector<std::string> WizardSession::Texts() const {
  std::vector<std::string> texts;
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) texts.push_back(element->PressKeyDefLayer(layer));
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) texts.push_back(element->ReleaseKeyDefLayer(layer));
  return texts;
}

void WizardSession::GiveTexts(const std::string& press, const std::string& release) {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    element->PressKeyDefLayer(layer, press);
    element->ReleaseKeyDefLayer(layer, release);
  }
}

std::string WizardSession::Stored(std::string_view name) {
  const std::string* value = platform.UserRegistry().Find(name);
  return value == nullptr ? "none" : *value;
}

std::string Bytes(const udtTactisBaseElement_TACTIS_SCANCODE& buffer, std::size_t count) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0) text += ' ';
    text += digits[buffer.Value[i] >> 4U];
    text += digits[buffer.Value[i] & 0xFU];
  }
  return text;
}

}  // namespace plexel

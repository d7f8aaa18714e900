#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "configdialog/frmConfigurationDialog.h"
#include "forms/form_directory.h"
#include "forms/hand.h"
#include "headless/key_road.h"
#include "services/code_page.h"
#include "services/dialogs.h"
#include "world/world.h"

namespace plexel {

inline const std::string Make(chrMakeMark), Break(chrBreakMark), Both = Make + Break;
inline constexpr std::int32_t White = 0xFFFFFF, CaptureColour = 65535;

/// A code buffer that holds these bytes, the last one at NextValue.
inline udtTactisBaseElement_TACTIS_SCANCODE Codes(std::initializer_list<int> bytes) {
  udtTactisBaseElement_TACTIS_SCANCODE buffer;
  std::size_t index = 0;
  for (const int byte : bytes) buffer.Value.at(index++) = static_cast<std::uint8_t>(byte);
  buffer.NextValue = static_cast<std::int32_t>(bytes.size()) - 1;
  return buffer;
}

/// A buffer of `count` code bytes in one group: NextValue is count + 1, with two end marks.
inline udtTactisBaseElement_TACTIS_SCANCODE CodesOfLength(std::int32_t count) {
  udtTactisBaseElement_TACTIS_SCANCODE buffer;
  buffer.Value.fill(0x1C);
  buffer.NextValue = count + 1;
  buffer.Value.at(0) = buffer.Value.at(static_cast<std::size_t>(count + 1)) = 0xFF;
  return buffer;
}

/// The bytes of a buffer up to NextValue.
inline std::vector<int> Bytes(const udtTactisBaseElement_TACTIS_SCANCODE& buffer) {
  return {buffer.Value.begin(), buffer.Value.begin() + buffer.NextValue + 1};
}

/// Opens the configuration dialog of an element and acts in it.
class ConfigurationDialog : public ::testing::Test, protected World {
 protected:
  using Act = std::function<void(frmConfigurationDialog& dialog, Hand& hand)>;

  ConfigurationDialog() {
    Speak();
    platform.Modal().onRun = [this](Form& form) { Run(form); };
    platform.Modal().onShown = [this](Form& form, Window* owner) {
      shown.push_back(form.Name());
      owners.push_back(owner == nullptr ? "" : owner->WindowName());
    };
    element->ElementType(RectLed);
    element->ParentWindow(std::make_shared<HostForm>());
    host.Forget();
  }

  /// Opens the dialog on the element, acts, and closes it by its close box when the act left it open.
  void Open(Act act) {
    act_ = std::move(act);
    element->OpenConfigurationDialog();
    EXPECT_TRUE(acted_) << "the dialog was not shown";
    acted_ = false;
  }
  void OpenFor(enumTactisBaseElementType type, Act act) {
    element->ElementType(type);
    Open(std::move(act));
  }
  /// Shows the dialog without the element's own road to it, for kinds that this road leaves out.
  void ShowDirectly(Act act) {
    act_ = std::move(act);
    FormDirectory::Instance().ShowModal(dialogs::frmConfigurationDialog, nullptr);
    EXPECT_TRUE(acted_) << "the dialog was not shown";
    acted_ = false;
  }

  /// The element's buffer behind a cell.
  udtTactisBaseElement_TACTIS_SCANCODE Buffer(std::int32_t row, std::int32_t col) {
    auto record = element->TactisBaseElementScanCodeBuffer();
    return *CellBuffer(record, row, col);
  }
  void Buffer(std::int32_t row, std::int32_t col, const udtTactisBaseElement_TACTIS_SCANCODE& value) {
    auto record = element->TactisBaseElementScanCodeBuffer();
    *CellBuffer(record, row, col) = value;
    element->TactisBaseElementScanCodeBuffer(record);
  }

  void Down(std::int32_t virtualKey, std::int32_t scanCode) { Send(virtualKey, scanCode, true); }
  void Up(std::int32_t virtualKey, std::int32_t scanCode) { Send(virtualKey, scanCode, false); }
  void Stroke(std::int32_t virtualKey, std::int32_t scanCode) {
    Down(virtualKey, scanCode);
    Up(virtualKey, scanCode);
  }
  void StrokeA() { Stroke(0x41, 0x1E); }
  void StrokeEscape() { Stroke(0x1B, 0x01); }
  void StrokeReturn() { Stroke(0x0D, 0x1C); }

  bool Hooked() { return platform.Hooks().Installed(HookKind::Keyboard); }
  static bool Capturing() { return Module().bDirectInputActive == True; }

  std::shared_ptr<ctlPlexelBaseElement> element = component.Create("A", host);
  std::vector<std::string> shown, owners;
  /// Runs for a form that is not the configuration dialog.
  std::function<void(Form& form)> onChild;

 private:
  void Send(std::int32_t virtualKey, std::int32_t scanCode, bool down) {
    KeyRoad(platform).Send({virtualKey, scanCode, false, down, 0});
  }

  void Run(Form& form) {
    auto* dialog = dynamic_cast<frmConfigurationDialog*>(&form);
    if (dialog == nullptr) {
      if (onChild) onChild(form);
      if (form.IsShown()) Hand(form).Close();
      return;
    }
    Hand hand(*dialog);
    try {
      acted_ = true;
      if (act_) act_(*dialog, hand);
    } catch (const Failure& failure) {
      ADD_FAILURE() << "an act failed: " << failure.what();
    }
    act_ = nullptr;
    if (dialog->IsShown()) hand.Close();
  }

  Act act_;
  bool acted_ = false;
};

}  // namespace plexel

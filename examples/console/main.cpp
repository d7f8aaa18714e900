// A host program without a display: it configures a key as a person would, by acts in the dialog and keys of the
// keyboard, and prints what the key sends.
#include <component/component.h>
#include <headless/headless_platform.h>
#include <headless/headless_surroundings.h>
#include <headless/headless_user.h>

#include <iomanip>
#include <iostream>

/// The panel around the element. A host must answer one question; of the events it hears those that it wants.
class Panel : public plexel::ElementHost {
  plexel::Boolean CheckIfLedIsAlreadyDefined(std::int32_t&, std::int32_t&) override { return false; }
  void ProjectModified(plexel::ctlPlexelBaseElement& element) override { std::cout << element.Name() << " is new\n"; }
};

/// Records Ctrl and a for the press on layer 1, and stores.
void ConfigureKey(plexel::HeadlessUser user) {
  const plexel::KeyEvent control{.virtualKey = 0x11, .scanCode = 0x1D}, letterA{.virtualKey = 'A', .scanCode = 0x1E};
  user.DblClick("msgScanCodes", 1, 1);
  user.Press({control, letterA});
  user.Click("cmdOK");
}

int main() {
  plexel::HeadlessPlatform platform;
  plexel::HeadlessSurroundings surroundings(platform);
  platform.Modal().onRun = [&](plexel::Form&) { ConfigureKey(plexel::HeadlessUser(platform)); };
  Panel panel;
  plexel::Component component(platform, surroundings);  // one at a time; it ends everything when it goes
  const auto element = component.Create("F1", panel);   // the panel hears its events
  element->ElementType(plexel::Rect);
  element->SizeX(60);                  // pixels
  element->OpenConfigurationDialog();  // returns when the dialog has closed
  std::cout << element->PressKeyDefLayer1() << '\n';

  const auto record = element->TactisBaseElementScanCodeBuffer();
  const auto& codes = record.strLayer1PressScanCode;
  std::cout << std::hex << std::uppercase << std::setfill('0');
  for (std::int32_t index = 0; index <= codes.NextValue; ++index) {
    const int byte = codes.Value.at(static_cast<std::size_t>(index));
    std::cout << (index == 0 ? "" : " ") << std::setw(2) << byte;
  }
  std::cout << '\n';
}

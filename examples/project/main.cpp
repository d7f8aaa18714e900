// A host program without a display that keeps its element in a project file: it configures press and release of a key
// on layer 2, saves the project, loads it again, and prints what the loaded key sends. Its word is the file's name.
#include <component/component.h>
#include <files/project_file.h>
#include <headless/headless_platform.h>
#include <headless/headless_surroundings.h>
#include <headless/headless_user.h>

#include <iomanip>
#include <iostream>

class Panel : public plexel::ElementHost {
  plexel::Boolean CheckIfLedIsAlreadyDefined(std::int32_t&, std::int32_t&) override { return false; }
};

/// Records Ctrl, Alt and F5 on layer 2: what goes down at the press, what comes up at the release.
void ConfigureKey(plexel::HeadlessUser user) {
  const plexel::KeyEvent shift{.virtualKey = 0x10, .scanCode = 0x2A}, control{.virtualKey = 0x11, .scanCode = 0x1D},
      alt{.virtualKey = 0x12, .scanCode = 0x38}, f5{.virtualKey = 0x74, .scanCode = 0x3F};
  user.Click("optCodeType(1)");  // makes only
  user.DblClick("msgScanCodes", 2, 1);
  user.Press({control, alt, f5});
  user.Press({shift, control});  // ends recording
  user.Click("optCodeType(2)");  // breaks only
  user.DblClick("msgScanCodes", 2, 2);
  user.Press({control, alt, f5});
  user.Click("cmdOK");
}

void Save(const char* file, const plexel::ctlPlexelBaseElement& element) {
  plexel::Project project;
  project.panel = "Example";
  plexel::ProjectElement& stored = project.elements.emplace_back();
  stored.place = element.Name();
  element.UserControl_WriteProperties(stored.bag);
  stored.codes = plexel::CodesOf(element.TactisBaseElementScanCodeBuffer());
  plexel::WriteProject(file, project);
}

std::shared_ptr<plexel::ctlPlexelBaseElement> Load(const char* file, plexel::Component& component, Panel& panel) {
  const plexel::ProjectElement stored = plexel::ReadProject(file).elements.at(0);
  const auto element = component.Read(stored.place, panel, stored.bag);
  auto record = element->TactisBaseElementScanCodeBuffer();
  plexel::PutCodes(stored.codes, record);  // the bytes stand beside the bag
  element->TactisBaseElementScanCodeBuffer(record);
  return element;
}

void Print(const std::string& text, const plexel::udtTactisBaseElement_TACTIS_SCANCODE& codes) {
  std::cout << text << std::hex << std::uppercase << std::setfill('0');
  for (std::int32_t index = 0; index <= codes.NextValue; ++index) {
    const int byte = codes.Value.at(static_cast<std::size_t>(index));
    std::cout << ' ' << std::setw(2) << byte;
  }
  std::cout << '\n';
}

int main(int count, char** words) {
  if (count != 2) return 2;
  plexel::HeadlessPlatform platform;
  plexel::HeadlessSurroundings surroundings(platform);
  platform.Modal().onRun = [&](plexel::Form&) { ConfigureKey(plexel::HeadlessUser(platform)); };
  Panel panel;
  plexel::Component component(platform, surroundings);
  const auto element = component.Create("F3", panel);
  element->ElementType(plexel::Rect);
  element->OpenConfigurationDialog();
  Save(words[1], *element);

  const auto loaded = Load(words[1], component, panel);
  const auto record = loaded->TactisBaseElementScanCodeBuffer();
  Print(loaded->PressKeyDefLayer2(), *plexel::PressBuffer(record, 2));
  Print(loaded->ReleaseKeyDefLayer2(), *plexel::ReleaseBuffer(record, 2));
}

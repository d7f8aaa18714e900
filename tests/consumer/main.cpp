#include <component/component.h>

#include <iostream>

/// A platform that a program without dialogs and keyboard gets by with: it knows the screen.
class NoDesktop : public plexel::Platform, public plexel::Screen {
 public:
  plexel::KeyboardHooks& Hooks() override { Lacks(); }
  plexel::KeyState& Keys() override { Lacks(); }
  plexel::KeyboardLayout& Layout() override { Lacks(); }
  plexel::Registry& UserRegistry() override { Lacks(); }
  plexel::Screen& TheScreen() override { return *this; }
  plexel::OsVersion& Version() override { Lacks(); }
  plexel::HelpViewer& Help() override { Lacks(); }
  plexel::ModalLoop& Modal() override { Lacks(); }
  plexel::MessageBoxes& Messages() override { Lacks(); }
  plexel::EventPump& Events() override { Lacks(); }

  float TwipsPerPixelX() override { return 15; }
  float TwipsPerPixelY() override { return 15; }
  std::intptr_t CreateInformationContext() override { return 1; }
  std::int32_t DeviceCapability(std::intptr_t, std::int32_t) override { return 96; }
  void DeleteContext(std::intptr_t) override {}

 private:
  [[noreturn]] static void Lacks() { throw plexel::Failure(plexel::FailureKind::Platform, "there is no desktop"); }
};

class NoServices : public plexel::Surroundings {
 public:
  plexel::LanguageService& Language() override { Lacks(); }
  plexel::SettingsService& Settings() override { Lacks(); }
  plexel::CapabilityService& Capabilities() override { Lacks(); }
  plexel::ParameterFileReader& ParameterFiles() override { Lacks(); }

 private:
  [[noreturn]] static void Lacks() { throw plexel::Failure(plexel::FailureKind::Platform, "there is no such service"); }
};

/// The smallest host: it knows of no other element, and hears the notices.
class Host : public plexel::ElementHost {
 public:
  plexel::Boolean CheckIfLedIsAlreadyDefined(std::int32_t&, std::int32_t&) override { return false; }
  void PropertyChanged(plexel::ctlPlexelBaseElement&, const plexel::Notice&) override { ++notices; }
  int notices = 0;
};

int main() {
  NoDesktop platform;
  NoServices services;
  Host host;
  plexel::Component component(platform, services);
  const auto element = component.Create("F1", host);
  host.notices = 0;
  element->PressKeyDefLayer1("[F1]");
  element->FocusVisible(true);
  if (element->PressKeyDefLayer1() != "[F1]" || element->FocusVisible() != plexel::True || host.notices != 2) return 1;
  std::cout << "an element of " << sizeof *element << " bytes\n";
  return 0;
}

#include <element/ctlPlexelBaseElement.h>

#include <iostream>

/// The smallest host: it listens to nothing and knows of no other element.
class Host : public plexel::ElementHost {
  void PropertyChanged(plexel::ctlPlexelBaseElement&, const plexel::Notice&) override { ++notices; }
  plexel::Boolean CheckIfLedIsAlreadyDefined(std::int32_t&, std::int32_t&) override { return plexel::False; }
  void DirectInputStatusChanged(plexel::ctlPlexelBaseElement&, plexel::Boolean&) override {}
  void SendKeyDefinition(plexel::ctlPlexelBaseElement&, plexel::KeyDefinition&) override {}
  void MouseClicked(plexel::ctlPlexelBaseElement&, std::int16_t&, std::int16_t&, float&, float&) override {}
  void MouseDblClicked(plexel::ctlPlexelBaseElement&) override {}
  void ProjectModified(plexel::ctlPlexelBaseElement&) override {}

 public:
  int notices = 0;
};

int main() {
  Host host;
  const auto element = plexel::ctlPlexelBaseElement::Create("F1", host);
  host.notices = 0;
  element->PressKeyDefLayer1("[F1]");
  if (element->PressKeyDefLayer1() != "[F1]" || host.notices != 1) return 1;
  std::cout << "an element of " << sizeof *element << " bytes\n";
  return 0;
}

#pragma once

#include "activex/control.h"
#include "element/element_host.h"

namespace plexel::activex {

/// The element's host: its notices and events go to the sinks, its question to the container.
class Control::Host : public ElementHost {
 public:
  explicit Host(Control& control) : control_(control) {}

  Boolean CheckIfLedIsAlreadyDefined(std::int32_t& LEDType, std::int32_t& Layer) override;
  void PropertyChanged(ctlPlexelBaseElement& element, const Notice& notice) override;
  void DirectInputStatusChanged(ctlPlexelBaseElement& element, Boolean& bDirectInputStatus) override;
  void SendKeyDefinition(ctlPlexelBaseElement& element, KeyDefinition& definition) override;
  void MouseClicked(ctlPlexelBaseElement& element, std::int16_t& Button, std::int16_t& Shift, float& x,
                    float& Y) override;
  void MouseDblClicked(ctlPlexelBaseElement& element) override;
  void ProjectModified(ctlPlexelBaseElement& element) override;

 private:
  Control& control_;
};

}  // namespace plexel::activex

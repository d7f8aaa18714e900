#include "headless/event_host.h"

#include "element/ctlPlexelBaseElement.h"
#include "platform/failure.h"

namespace plexel {

void EventHost::PropertyChanged(ctlPlexelBaseElement& element, const Notice& notice) {
  HostEvent::Value value = notice.integer;
  if (notice.kind == Notice::Kind::Text) value = std::string(notice.text);
  Happened({element.Name(), "PropertyChanged", {std::move(value)}});
}

Boolean EventHost::CheckIfLedIsAlreadyDefined(std::int32_t& LEDType, std::int32_t& Layer) {
  faults_.Check(Fault::Container);
  if (!hasMember_) throw Failure(FailureKind::NoSuchMember, "the container has no CheckIfLedIsAlreadyDefined");
  const auto found = leds_.find({LEDType, Layer});
  return found == leds_.end() ? False : found->second;
}

void EventHost::DirectInputStatusChanged(ctlPlexelBaseElement& element, Boolean& bDirectInputStatus) {
  Handle(Fault::HandlerDirectInputStatusChanged,
         {element.Name(), "DirectInputStatusChanged", {std::int32_t{bDirectInputStatus.Value()}}});
}

void EventHost::SendKeyDefinition(ctlPlexelBaseElement& element, KeyDefinition& definition) {
  const KeyDefinition& d = definition;
  Handle(Fault::HandlerSendKeyDefinition, {element.Name(),
                                           "SendKeyDefinition",
                                           {d.strLayer1Press, d.strLayer1Release, d.strLayer2Press, d.strLayer2Release,
                                            d.strLayer3Press, d.strLayer3Release, d.strLayer4Press, d.strLayer4Release,
                                            d.LEDTypeLayer1, d.LEDTypeLayer2, d.LEDTypeLayer3, d.LEDTypeLayer4}});
}

void EventHost::MouseClicked(ctlPlexelBaseElement& element, std::int16_t& Button, std::int16_t& Shift, float& x,
                             float& Y) {
  Handle(Fault::HandlerMouseClicked,
         {element.Name(), "MouseClicked", {std::int32_t{Button}, std::int32_t{Shift}, double{x}, double{Y}}});
}

void EventHost::MouseDblClicked(ctlPlexelBaseElement& element) {
  Handle(Fault::HandlerMouseDblClicked, {element.Name(), "MouseDblClicked", {}});
}

void EventHost::ProjectModified(ctlPlexelBaseElement& element) {
  Handle(Fault::HandlerProjectModified, {element.Name(), "ProjectModified", {}});
}

void EventHost::LedDefined(std::int32_t type, std::int32_t layer, Boolean answer) {
  hasMember_ = true;
  leds_[{type, layer}] = answer;
}

void EventHost::Handle(Fault fault, HostEvent event) {
  const std::string name = event.name;
  Happened(std::move(event));
  if (faults_.Trips(fault)) throw Failure(FailureKind::Handler, "the handler of " + name + " failed");
}

}  // namespace plexel

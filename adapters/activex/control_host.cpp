#include "activex/control_host.h"

#include <array>
#include <span>

#include "activex/connection_points.h"
#include "activex/container_question.h"
#include "activex/members.h"
#include "win32/bstr.h"

namespace plexel::activex {

namespace {

/// The events, in the order of the type library.
enum Event : DISPID {
  DirectInputStatusChangedEvent = 1,
  SendKeyDefinitionEvent,
  MouseClickedEvent,
  MouseDblClickedEvent,
  ProjectModifiedEvent
};

VARIANTARG Reference(VARTYPE type, void* place) {
  VARIANTARG argument;
  VariantInit(&argument);
  V_VT(&argument) = static_cast<VARTYPE>(VT_BYREF | type);
  V_BYREF(&argument) = place;
  return argument;
}

}  // namespace

Boolean Control::Host::CheckIfLedIsAlreadyDefined(std::int32_t& LEDType, std::int32_t& Layer) {
  return AskContainer(control_.Site(), LEDType, Layer);
}

void Control::Host::PropertyChanged(ctlPlexelBaseElement&, const Notice& notice) {
  control_.Changed(true);
  if (!control_.Points().Notices().HasSinks()) return;
  const bool names = notice.kind == Notice::Kind::Text;
  control_.Points().Notices().Tell(names ? PropertyNumber(notice.text) : DISPID_UNKNOWN);
}

void Control::Host::DirectInputStatusChanged(ctlPlexelBaseElement&, Boolean& bDirectInputStatus) {
  VARIANT_BOOL status = bDirectInputStatus.Value();
  std::array arguments = {Reference(VT_BOOL, &status)};
  control_.Points().Events().Raise(DirectInputStatusChangedEvent, arguments);
}

void Control::Host::SendKeyDefinition(ctlPlexelBaseElement&, KeyDefinition& definition) {
  if (!control_.Points().Events().HasSinks()) return;
  const std::array sent = {&definition.strLayer1Press,   &definition.strLayer1Release, &definition.strLayer2Press,
                           &definition.strLayer2Release, &definition.strLayer3Press,   &definition.strLayer3Release,
                           &definition.strLayer4Press,   &definition.strLayer4Release};
  std::array<Bstr, 8> texts;
  std::array<LONG, 4> types = {definition.LEDTypeLayer1, definition.LEDTypeLayer2, definition.LEDTypeLayer3,
                               definition.LEDTypeLayer4};
  std::array<VARIANTARG, 12> arguments;  // in their order reversed
  auto argument = arguments.rbegin();
  for (std::size_t index = 0; index < texts.size(); ++index) {
    *texts[index].Out() = NewBstr(*sent[index]);
    *argument++ = Reference(VT_BSTR, texts[index].Out());
  }
  for (LONG& type : types) *argument++ = Reference(VT_I4, &type);
  control_.Points().Events().Raise(SendKeyDefinitionEvent, arguments);
}

void Control::Host::MouseClicked(ctlPlexelBaseElement&, std::int16_t& Button, std::int16_t& Shift, float& x, float& Y) {
  std::array arguments = {Reference(VT_R4, &Y), Reference(VT_R4, &x), Reference(VT_I2, &Shift),
                          Reference(VT_I2, &Button)};
  control_.Points().Events().Raise(MouseClickedEvent, arguments);
}

void Control::Host::MouseDblClicked(ctlPlexelBaseElement&) {
  control_.Points().Events().Raise(MouseDblClickedEvent, {});
}

void Control::Host::ProjectModified(ctlPlexelBaseElement&) {
  control_.Points().Events().Raise(ProjectModifiedEvent, {});
}

}  // namespace plexel::activex

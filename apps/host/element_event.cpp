#include "host/element_event.h"

#include <array>
#include <cstdint>

#include "win32/bstr.h"
#include "win32/variant.h"

namespace plexel::host {

namespace {

struct EventName {
  DISPID number;
  const char* name;
};
constexpr std::array names = {EventName{DirectInputStatusChanged, "DirectInputStatusChanged"},
                              EventName{SendKeyDefinition, "SendKeyDefinition"},
                              EventName{MouseClicked, "MouseClicked"}, EventName{MouseDblClicked, "MouseDblClicked"},
                              EventName{ProjectModified, "ProjectModified"}};

std::string InWords(VARIANTARG& argument) {
  Variant value, text;
  if (FAILED(VariantCopyInd(&value.Get(), &argument))) return "?";
  const VARTYPE type = V_VT(&value.Get());
  if (type == VT_BSTR) return '"' + NarrowOf(V_BSTR(&value.Get())) + '"';
  if (type == VT_BOOL) return std::to_string(V_BOOL(&value.Get()));
  constexpr LCID Neutral = LOCALE_INVARIANT;
  if (FAILED(VariantChangeTypeEx(&text.Get(), &value.Get(), Neutral, 0, VT_BSTR))) return "?";
  return NarrowOf(V_BSTR(&text.Get()));
}

}  // namespace

ElementEvent EventOf(DISPID number, const DISPPARAMS& arguments) {
  ElementEvent event{number, {}};
  for (const EventName& one : names) {
    if (one.number == number) event.call = one.name;
  }
  if (event.call.empty()) return event;
  event.call += '(';
  for (UINT left = arguments.cArgs; left > 0; --left) {  // they come in their order reversed
    event.call += InWords(arguments.rgvarg[left - 1]) + (left > 1 ? ", " : "");
  }
  event.call += ')';
  return event;
}

}  // namespace plexel::host

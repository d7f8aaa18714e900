#include "host/event_sink.h"

namespace plexel::host {

void* EventSink::Find(REFIID iid) {
  if (iid == __uuidof(__ctlPlexelBaseElement)) return static_cast<IDispatch*>(this);
  return ComObject::Find(iid);
}

HRESULT EventSink::Invoke(DISPID number, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) {
  if (arguments == nullptr) return E_POINTER;
  const ElementEvent event = EventOf(number, *arguments);
  if (event.call.empty()) return DISP_E_MEMBERNOTFOUND;
  heard_(event);
  return S_OK;
}

}  // namespace plexel::host

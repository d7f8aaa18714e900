#include "activex/class_info.h"

#include <PlexelBaseElement.h>

namespace plexel::activex {

HRESULT ClassInfo::GetClassInfo(ITypeInfo** type) {
  if (type == nullptr) return E_POINTER;
  *type = nullptr;
  return Guarded("GetClassInfo", [&] {
    *type = TheControl().Shared().Type(__uuidof(::ctlPlexelBaseElement)).HandOn();
    return S_OK;
  });
}

HRESULT ClassInfo::GetGUID(DWORD kind, GUID* id) {
  if (id == nullptr) return E_POINTER;
  *id = GUID_NULL;
  if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
  *id = __uuidof(__ctlPlexelBaseElement);
  return S_OK;
}

}  // namespace plexel::activex

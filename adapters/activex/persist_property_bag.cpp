#include "activex/persist_property_bag.h"

#include <PlexelBaseElement.h>

#include "activex/container_bag.h"

namespace plexel::activex {

HRESULT PersistPropertyBag::GetClassID(CLSID* id) {
  if (id == nullptr) return E_POINTER;
  *id = __uuidof(::ctlPlexelBaseElement);
  return S_OK;
}

HRESULT PersistPropertyBag::InitNew() {
  return TheControl().Run("InitNew", [&] { TheControl().Renew(); });
}

HRESULT PersistPropertyBag::Load(IPropertyBag* bag, IErrorLog* log) {
  if (bag == nullptr) return E_POINTER;
  return TheControl().Run("Load", [&] {
    TheControl().Read(ContainerBag(bag, log));
    TheControl().Changed(false);
  });
}

/// The element leaves out what is at its default, whatever the container asks for: a missing key is read as it.
HRESULT PersistPropertyBag::Save(IPropertyBag* bag, WINBOOL clearDirty, WINBOOL) {
  if (bag == nullptr) return E_POINTER;
  return TheControl().Run("Save", [&] {
    ContainerBag stored(bag, nullptr);
    TheControl().TheElement().UserControl_WriteProperties(stored);
    if (FAILED(stored.Refusal())) return stored.Refusal();
    if (clearDirty != FALSE) TheControl().Changed(false);
    return S_OK;
  });
}

}  // namespace plexel::activex

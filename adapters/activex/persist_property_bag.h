#pragma once

#include <ocidl.h>
#include <ole2.h>
#include <windows.h>

#include "activex/face.h"

namespace plexel::activex {

/// Loads and saves the element by a container's bag of named values, under the element's own keys.
class PersistPropertyBag final : public Face<IPersistPropertyBag> {
 public:
  using Face::Face;
  HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) override;
  HRESULT STDMETHODCALLTYPE InitNew() override;
  HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bag, IErrorLog* log) override;
  HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bag, WINBOOL clearDirty, WINBOOL all) override;
};

}  // namespace plexel::activex

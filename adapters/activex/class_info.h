#pragma once

#include <ocidl.h>
#include <ole2.h>
#include <windows.h>

#include "activex/face.h"

namespace plexel::activex {

/// Leads from the control to its class in the type library, and to its events.
class ClassInfo final : public Face<IProvideClassInfo2> {
 public:
  using Face::Face;
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** type) override;
  HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* id) override;
};

}  // namespace plexel::activex

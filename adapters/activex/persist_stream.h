#pragma once

#include <ocidl.h>
#include <ole2.h>
#include <windows.h>

#include "activex/face.h"

namespace plexel::activex {

/// Reads the element from a stream, from where that stands. A damaged one is refused, and the element is as new.
HRESULT LoadElement(Control& control, IStream& stream);
HRESULT SaveElement(Control& control, IStream& stream);

/// Loads and saves the element by streams.
class PersistStream final : public Face<IPersistStreamInit> {
 public:
  using Face::Face;
  HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) override;
  HRESULT STDMETHODCALLTYPE IsDirty() override;
  HRESULT STDMETHODCALLTYPE Load(IStream* stream) override;
  HRESULT STDMETHODCALLTYPE Save(IStream* stream, WINBOOL clearDirty) override;
  HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* size) override;
  HRESULT STDMETHODCALLTYPE InitNew() override;
};

}  // namespace plexel::activex

#pragma once

#include <ole2.h>
#include <windows.h>

#include "activex/face.h"

namespace plexel::activex {

/// Loads and saves the element by a storage, in one stream of it. It holds on to no storage between the calls.
class PersistStorage final : public Face<IPersistStorage> {
 public:
  using Face::Face;
  HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) override;
  HRESULT STDMETHODCALLTYPE IsDirty() override;
  HRESULT STDMETHODCALLTYPE InitNew(IStorage* storage) override;
  HRESULT STDMETHODCALLTYPE Load(IStorage* storage) override;
  HRESULT STDMETHODCALLTYPE Save(IStorage* storage, WINBOOL sameAsLoad) override;
  HRESULT STDMETHODCALLTYPE SaveCompleted(IStorage* storage) override;
  HRESULT STDMETHODCALLTYPE HandsOffStorage() override;
};

}  // namespace plexel::activex

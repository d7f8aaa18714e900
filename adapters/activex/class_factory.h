#pragma once

#include <ole2.h>
#include <windows.h>

#include "activex/module.h"

namespace plexel::activex {

/// Makes controls.
class ClassFactory final : public IClassFactory, private module::Use {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
  HRESULT STDMETHODCALLTYPE LockServer(WINBOOL lock) override;

 private:
  ~ClassFactory() = default;
  LONG holds_ = 0;
};

}  // namespace plexel::activex

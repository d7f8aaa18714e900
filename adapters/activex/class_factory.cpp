#include "activex/class_factory.h"

#include "activex/control.h"

namespace plexel::activex {

HRESULT ClassFactory::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  const bool known = iid == __uuidof(IUnknown) || iid == __uuidof(IClassFactory);
  *object = known ? this : nullptr;
  if (known) AddRef();
  return known ? S_OK : E_NOINTERFACE;
}

ULONG ClassFactory::AddRef() { return static_cast<ULONG>(InterlockedIncrement(&holds_)); }

ULONG ClassFactory::Release() {
  const LONG holds = InterlockedDecrement(&holds_);
  if (holds == 0) delete this;
  return static_cast<ULONG>(holds);
}

/// A control within another object is first given out as what it is by itself.
HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (outer != nullptr && iid != __uuidof(IUnknown)) return CLASS_E_NOAGGREGATION;
  return Guarded("CreateInstance", [&] { return Control::Create(outer, iid, object); });
}

HRESULT ClassFactory::LockServer(WINBOOL lock) {
  lock != FALSE ? module::Keep() : module::LetGo();
  return S_OK;
}

}  // namespace plexel::activex

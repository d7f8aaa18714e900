#pragma once

#include <ole2.h>
#include <windows.h>

#include "host/dispatch_part.h"

namespace plexel::host {

/// An object with interfaces of COM, the first of which is its identity. It begins with nobody holding it, and goes
/// when nobody holds it any more.
template <typename Identity, typename... Others>
class ComObject : public Identity, public Others... {
 public:
  ComObject(const ComObject&) = delete;
  ComObject& operator=(const ComObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = Find(iid);
    if (*object == nullptr) return E_NOINTERFACE;
    ++holds_;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++holds_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --holds_;
    if (left == 0) delete this;
    return left;
  }
  /// How often it is held.
  ULONG Holds() const { return holds_; }

 protected:
  ComObject() = default;
  virtual ~ComObject() = default;
  /// The interface of an identifier, null when there is none. Interfaces that others are derived from are added by who
  /// derives from this.
  virtual void* Find(REFIID iid) {
    if (iid == __uuidof(IUnknown)) return static_cast<Identity*>(this);
    void* found = nullptr;
    Look<Identity>(iid, found);
    (Look<Others>(iid, found), ...);
    return found;
  }

 private:
  template <typename Part>
  void Look(REFIID iid, void*& found) {
    if (iid == __uuidof(typename InterfaceOf<Part>::Type)) found = static_cast<Part*>(this);
  }

  ULONG holds_ = 0;
};

}  // namespace plexel::host

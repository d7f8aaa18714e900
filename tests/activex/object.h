#pragma once

#include <ole2.h>
#include <windows.h>

namespace plexel::activex {

/// The interface that a part of a test object stands for.
template <typename Part>
struct InterfaceOf {
  using Type = Part;
};

/// An object of a test that stands on the stack and counts who holds it. Interfaces come from QueryInterface of who
/// derives.
template <typename... Interfaces>
class TestObject : public Interfaces... {
 public:
  virtual ~TestObject() = default;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++holds; }
  ULONG STDMETHODCALLTYPE Release() override { return --holds; }
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    *object = nullptr;
    ((*object = iid == __uuidof(typename InterfaceOf<Interfaces>::Type) ? static_cast<Interfaces*>(this) : *object),
     ...);
    if (iid == __uuidof(IUnknown)) *object = this->Identity();
    if (*object != nullptr) ++holds;
    return *object == nullptr ? E_NOINTERFACE : S_OK;
  }

  ULONG holds = 0;

 protected:
  virtual IUnknown* Identity() { return First<Interfaces...>(); }

 private:
  template <typename Interface, typename...>
  IUnknown* First() {
    return static_cast<Interface*>(this);
  }
};

/// The calls by name that a test object does not have.
template <typename Interface>
class NoNames : public Interface {
 public:
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    return DISP_E_MEMBERNOTFOUND;
  }
};

template <typename Interface>
struct InterfaceOf<NoNames<Interface>> {
  using Type = Interface;
};

}  // namespace plexel::activex

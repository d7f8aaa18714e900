#pragma once

#include <ole2.h>
#include <windows.h>

#include <span>
#include <string_view>

namespace plexel::host {

/// A member that is called by its name.
struct NamedMember {
  std::wstring_view name;
  DISPID number = 0;
};

/// Finds the number of a member's name, in any case of its letters. Names behind the first are those of arguments, of
/// which there are none.
HRESULT FindMember(std::span<const NamedMember> members, LPOLESTR* names, UINT count, DISPID* numbers);

/// Takes a number out of an argument, or of what it refers to, as automation converts it.
HRESULT TakeNumber(VARIANTARG& argument, LONG& number);

/// IDispatch, or an interface derived from it, of an object without a type library. Who derives tells the members and
/// answers Invoke.
template <typename Interface>
class DispatchPart : public Interface {
 public:
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** type) override {
    if (type == nullptr) return E_POINTER;
    *type = nullptr;
    return DISP_E_BADINDEX;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* numbers) override {
    return FindMember(Members(), names, count, numbers);
  }

 protected:
  virtual std::span<const NamedMember> Members() const { return {}; }
};

/// The interface that a part of an object stands for.
template <typename Part>
struct InterfaceOf {
  using Type = Part;
};
template <typename Interface>
struct InterfaceOf<DispatchPart<Interface>> {
  using Type = Interface;
};

}  // namespace plexel::host

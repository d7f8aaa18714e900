#include "activex/dispatch_call.h"

namespace plexel::activex {

std::optional<DISPID> MemberOf(IDispatch& object, const wchar_t* name) {
  auto* asked = const_cast<wchar_t*>(name);
  DISPID member = DISPID_UNKNOWN;
  const HRESULT result = object.GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &member);
  if (FAILED(result) || member == DISPID_UNKNOWN) return std::nullopt;
  return member;
}

HRESULT Call(IDispatch& object, DISPID member, WORD kind, std::span<VARIANTARG> reversed, Variant& answer) {
  DISPPARAMS arguments{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
  EXCEPINFO trouble{};
  const HRESULT result =
      object.Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, kind, &arguments, &answer.Get(), &trouble, nullptr);
  if (result == DISP_E_EXCEPTION) {
    SysFreeString(trouble.bstrSource);
    SysFreeString(trouble.bstrDescription);
    SysFreeString(trouble.bstrHelpFile);
  }
  return result;
}

bool FetchProperty(IDispatch& object, DISPID member, Variant& value) {
  return SUCCEEDED(Call(object, member, DISPATCH_PROPERTYGET, {}, value));
}

bool FetchProperty(IDispatch& object, const wchar_t* name, Variant& value) {
  const std::optional<DISPID> member = MemberOf(object, name);
  return member && FetchProperty(object, *member, value);
}

}  // namespace plexel::activex

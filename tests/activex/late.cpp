#include "activex/late.h"

#include <algorithm>

#include "activex/text.h"
#include "win32/variant.h"

namespace plexel::activex {

VARIANT Number(long value) {
  VARIANT variant;
  VariantInit(&variant);
  V_VT(&variant) = VT_I4;
  V_I4(&variant) = value;
  return variant;
}

VARIANT Boolean16(short value) {
  VARIANT variant;
  VariantInit(&variant);
  V_VT(&variant) = VT_BOOL;
  V_BOOL(&variant) = value;
  return variant;
}

HRESULT Late::Invoke(const wchar_t* name, WORD way, DISPPARAMS& arguments, VARIANT* answer) {
  auto* asked = const_cast<wchar_t*>(name);
  DISPID member = 0;
  const HRESULT known = object_->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &member);
  if (FAILED(known)) return known;
  EXCEPINFO trouble{};
  const HRESULT result =
      object_->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, way, &arguments, answer, &trouble, nullptr);
  if (result == DISP_E_EXCEPTION) {
    description = Taken(trouble.bstrDescription);
    source = Taken(trouble.bstrSource);
    code = trouble.scode;
  }
  return result;
}

HRESULT Late::Put(const wchar_t* name, VARIANT value, WORD way) {
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS arguments{&value, &put, 1, 1};
  return Invoke(name, way, arguments, nullptr);
}

HRESULT Late::Put(const wchar_t* name, long value) { return Put(name, Number(value)); }

HRESULT Late::Put(const wchar_t* name, const wchar_t* value) {
  const Bstr text(value);
  VARIANT variant;
  VariantInit(&variant);
  V_VT(&variant) = VT_BSTR;
  V_BSTR(&variant) = text.Get();
  return Put(name, variant);
}

HRESULT Late::Get(const wchar_t* name, VARIANT& value) {
  VariantInit(&value);
  DISPPARAMS none{};
  return Invoke(name, DISPATCH_PROPERTYGET, none, &value);
}

std::wstring Late::Get(const wchar_t* name) {
  Variant value, text;
  if (const HRESULT result = Get(name, value.Get()); FAILED(result)) return L"failed " + std::to_wstring(result);
  const std::wstring type = std::to_wstring(V_VT(&value.Get()));
  if (FAILED(VariantChangeType(&text.Get(), &value.Get(), 0, VT_BSTR))) return type;
  return (type + L":").append(ContentOf(V_BSTR(&text.Get())));
}

HRESULT Late::Call(const wchar_t* name, std::vector<VARIANT> arguments, VARIANT* answer) {
  std::reverse(arguments.begin(), arguments.end());
  DISPPARAMS given{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
  return Invoke(name, DISPATCH_METHOD, given, answer);
}

}  // namespace plexel::activex

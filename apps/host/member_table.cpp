#include "host/member_table.h"

#include <array>
#include <type_traits>

#include "win32/bstr.h"
#include "win32/variant.h"
#include "win32/wide_text.h"

namespace plexel::host {

namespace {

using Element = ::_ctlPlexelBaseElement;

template <typename Type>
HRESULT Put(Element& element, HRESULT (STDMETHODCALLTYPE Element::*put)(Type), const MemberValue& value) {
  if constexpr (std::is_same_v<Type, BSTR>) {
    return (element.*put)(Bstr(std::get<std::wstring>(value)).Get());
  } else if constexpr (std::is_same_v<Type, double>) {
    return (element.*put)(std::get<double>(value));
  } else {
    return (element.*put)(static_cast<Type>(std::get<LONG>(value)));
  }
}

template <typename Type>
HRESULT Get(Element& element, HRESULT (STDMETHODCALLTYPE Element::*get)(Type*), MemberValue& value) {
  if constexpr (std::is_same_v<Type, BSTR>) {
    Bstr text;
    const HRESULT result = (element.*get)(text.Out());
    value = std::wstring(ContentOf(text.Get()));
    return result;
  } else {
    Type got{};
    const HRESULT result = (element.*get)(&got);
    if constexpr (std::is_same_v<Type, double>) {
      value = got;
    } else {
      value = static_cast<LONG>(got);
    }
    return result;
  }
}

template <auto put, auto get>
constexpr EarlyMember Of(const char* name) {
  return {name, [](Element& element, const MemberValue& value) { return Put(element, put, value); },
          [](Element& element, MemberValue& value) { return Get(element, get, value); }};
}

constexpr std::array members = {
    Of<&Element::put_DPIFontScaleFactor, &Element::get_DPIFontScaleFactor>("DPIFontScaleFactor"),
    Of<&Element::put_WizardOptions, &Element::get_WizardOptions>("WizardOptions"),
    Of<&Element::put_XElementSize, &Element::get_XElementSize>("XElementSize"),
    Of<&Element::put_FocusVisible, &Element::get_FocusVisible>("FocusVisible"),
    Of<&Element::put_FocusWidth, &Element::get_FocusWidth>("FocusWidth"),
    Of<&Element::put_FocusColor, &Element::get_FocusColor>("FocusColor"),
    Of<&Element::put_WizardOn, &Element::get_WizardOn>("WizardOn"),
    Of<&Element::put_DeviceType, &Element::get_DeviceType>("DeviceType"),
    Of<&Element::put_SizeY, &Element::get_SizeY>("SizeY"),
    Of<&Element::put_SizeX, &Element::get_SizeX>("SizeX"),
    Of<&Element::put_ElementType, &Element::get_ElementType>("ElementType"),
    Of<&Element::put_ZoomFactor, &Element::get_ZoomFactor>("ZoomFactor"),
    Of<&Element::put_LEDTypeLayer1, &Element::get_LEDTypeLayer1>("LEDTypeLayer1"),
    Of<&Element::put_LEDTypeLayer2, &Element::get_LEDTypeLayer2>("LEDTypeLayer2"),
    Of<&Element::put_LEDTypeLayer3, &Element::get_LEDTypeLayer3>("LEDTypeLayer3"),
    Of<&Element::put_LEDTypeLayer4, &Element::get_LEDTypeLayer4>("LEDTypeLayer4"),
    Of<&Element::put_ReleaseKeyDefLayer1, &Element::get_ReleaseKeyDefLayer1>("ReleaseKeyDefLayer1"),
    Of<&Element::put_ReleaseKeyDefLayer2, &Element::get_ReleaseKeyDefLayer2>("ReleaseKeyDefLayer2"),
    Of<&Element::put_ReleaseKeyDefLayer3, &Element::get_ReleaseKeyDefLayer3>("ReleaseKeyDefLayer3"),
    Of<&Element::put_ReleaseKeyDefLayer4, &Element::get_ReleaseKeyDefLayer4>("ReleaseKeyDefLayer4"),
    Of<&Element::put_PressKeyDefLayer1, &Element::get_PressKeyDefLayer1>("PressKeyDefLayer1"),
    Of<&Element::put_PressKeyDefLayer2, &Element::get_PressKeyDefLayer2>("PressKeyDefLayer2"),
    Of<&Element::put_PressKeyDefLayer3, &Element::get_PressKeyDefLayer3>("PressKeyDefLayer3"),
    Of<&Element::put_PressKeyDefLayer4, &Element::get_PressKeyDefLayer4>("PressKeyDefLayer4"),
    Of<&Element::put_OriginalPosX, &Element::get_OriginalPosX>("OriginalPosX"),
    Of<&Element::put_OriginalPosY, &Element::get_OriginalPosY>("OriginalPosY"),
    Of<&Element::put_HardwareNumberKey, &Element::get_HardwareNumberKey>("HardwareNumberKey"),
    Of<&Element::put_HardwareNumberKey1, &Element::get_HardwareNumberKey1>("HardwareNumberKey1"),
    Of<&Element::put_HardwareNumberKey2, &Element::get_HardwareNumberKey2>("HardwareNumberKey2"),
    Of<&Element::put_HardwareNumberKey3, &Element::get_HardwareNumberKey3>("HardwareNumberKey3"),
    Of<&Element::put_HardwareNumberKey4, &Element::get_HardwareNumberKey4>("HardwareNumberKey4"),
    Of<&Element::put_HardwareNumberKey5, &Element::get_HardwareNumberKey5>("HardwareNumberKey5"),
    Of<&Element::put_HardwareNumberKey6, &Element::get_HardwareNumberKey6>("HardwareNumberKey6"),
    Of<&Element::put_HardwareNumberKey7, &Element::get_HardwareNumberKey7>("HardwareNumberKey7"),
    Of<&Element::put_HardwareNumberLed, &Element::get_HardwareNumberLed>("HardwareNumberLed"),
    Of<&Element::put_HardwareNumberButton, &Element::get_HardwareNumberButton>("HardwareNumberButton"),
    Of<&Element::put_ShowDefined, &Element::get_ShowDefined>("ShowDefined"),
    Of<&Element::put_KeyDefinedColor, &Element::get_KeyDefinedColor>("KeyDefinedColor"),
    Of<&Element::put_ShowX, &Element::get_ShowX>("ShowX"),
    Of<&Element::put_VantaEnabled, &Element::get_VantaEnabled>("VantaEnabled"),
    Of<&Element::put_TargetSystem, &Element::get_TargetSystem>("TargetSystem"),
    Of<&Element::put_ButtonNotes, &Element::get_ButtonNotes>("ButtonNotes"),
    Of<&Element::put_ShowXPermanent, &Element::get_ShowXPermanent>("ShowXPermanent"),
};

HRESULT NumberOf(IDispatch& element, const std::string& name, DISPID& number) {
  std::wstring wide = Wide(name);
  LPOLESTR asked = wide.data();
  return element.GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &number);
}

struct PutVariant {
  VARIANT& variant;
  void operator()(LONG value) const {
    V_VT(&variant) = VT_I4;
    V_I4(&variant) = value;
  }
  void operator()(double value) const {
    V_VT(&variant) = VT_R8;
    V_R8(&variant) = value;
  }
  void operator()(const std::wstring& value) const {
    V_BSTR(&variant) = NewBstr(value);
    V_VT(&variant) = VT_BSTR;
  }
};

}  // namespace

std::span<const EarlyMember> EarlyMembers() { return members; }

HRESULT PutLate(IDispatch& element, const std::string& name, const MemberValue& value) {
  DISPID member = DISPID_UNKNOWN, way = DISPID_PROPERTYPUT;
  if (const HRESULT result = NumberOf(element, name, member); FAILED(result)) return result;
  Variant given;
  std::visit(PutVariant{given.Get()}, value);
  DISPPARAMS arguments = {&given.Get(), &way, 1, 1};
  return element.Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &arguments, nullptr, nullptr,
                        nullptr);
}

HRESULT GetLate(IDispatch& element, const std::string& name, MemberValue& value) {
  DISPID member = DISPID_UNKNOWN;
  if (const HRESULT result = NumberOf(element, name, member); FAILED(result)) return result;
  Variant got, number;
  DISPPARAMS none = {};
  const HRESULT result =
      element.Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &got.Get(), nullptr, nullptr);
  if (FAILED(result)) return result;
  switch (V_VT(&got.Get())) {
    case VT_BSTR:
      value = std::wstring(ContentOf(V_BSTR(&got.Get())));
      return S_OK;
    case VT_R8:
      value = V_R8(&got.Get());
      return S_OK;
    default:
      break;
  }
  if (const HRESULT changed = VariantChangeType(&number.Get(), &got.Get(), 0, VT_I4); FAILED(changed)) return changed;
  value = V_I4(&number.Get());
  return S_OK;
}

}  // namespace plexel::host

#pragma once

#include <PlexelBaseElement.h>
#include <ole2.h>
#include <windows.h>

#include <string>
#include <string_view>
#include <type_traits>

#include "activex/dispatch.h"
#include "activex/face.h"
#include "activex/record_values.h"
#include "win32/bstr.h"

namespace plexel::activex {

/// The interface of the element: early bound by its table of functions, late bound by names (dispatch.h).
class ElementInterface final : public Face<_ctlPlexelBaseElement> {
 public:
  explicit ElementInterface(Control& control) : Face(control), dispatch_(control, *this) {}

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return dispatch_.GetTypeInfoCount(count); }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** type) override {
    return dispatch_.GetTypeInfo(index, type);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID kind, LPOLESTR* names, UINT count, LCID, DISPID* numbers) override {
    return dispatch_.GetIDsOfNames(kind, names, count, numbers);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID kind, LCID locale, WORD flags, DISPPARAMS* arguments,
                                   VARIANT* answer, EXCEPINFO* trouble, UINT* wrongArgument) override {
    return dispatch_.Invoke(member, kind, locale, flags, arguments, answer, trouble, wrongArgument);
  }

  HRESULT STDMETHODCALLTYPE put_DPIFontScaleFactor(double Value) override {
    return Put("DPIFontScaleFactor", &E::DPIFontScaleFactor, Value);
  }
  HRESULT STDMETHODCALLTYPE get_DPIFontScaleFactor(double* Value) override {
    return Get("DPIFontScaleFactor", &E::DPIFontScaleFactor, Value);
  }
  HRESULT STDMETHODCALLTYPE putref_ParentWindow(IDispatch* Value) override;
  HRESULT STDMETHODCALLTYPE get_ParentWindow(IDispatch** Value) override;
  HRESULT STDMETHODCALLTYPE put_WizardOptions(::enumWizardOptions Value) override {
    return Put("WizardOptions", &E::WizardOptions, Value);
  }
  HRESULT STDMETHODCALLTYPE get_WizardOptions(::enumWizardOptions* Value) override {
    return Get("WizardOptions", &E::WizardOptions, Value);
  }
  HRESULT STDMETHODCALLTYPE put_XElementSize(::enumXSize Value) override {
    return Put("XElementSize", &E::XElementSize, Value);
  }
  HRESULT STDMETHODCALLTYPE get_XElementSize(::enumXSize* Value) override {
    return Get("XElementSize", &E::XElementSize, Value);
  }
  HRESULT STDMETHODCALLTYPE get_FocusVisible(VARIANT_BOOL* Value) override {
    return Get("FocusVisible", &E::FocusVisible, Value);
  }
  HRESULT STDMETHODCALLTYPE put_FocusVisible(VARIANT_BOOL Value) override {
    return Put("FocusVisible", &E::FocusVisible, Value);
  }
  HRESULT STDMETHODCALLTYPE put_FocusWidth(unsigned char Value) override {
    return Put("FocusWidth", &E::FocusWidth, Value);
  }
  HRESULT STDMETHODCALLTYPE get_FocusWidth(unsigned char* Value) override {
    return Get("FocusWidth", &E::FocusWidth, Value);
  }
  HRESULT STDMETHODCALLTYPE put_FocusColor(OLE_COLOR Value) override {
    return Put("FocusColor", &E::FocusColor, Value);
  }
  HRESULT STDMETHODCALLTYPE get_FocusColor(OLE_COLOR* Value) override {
    return Get("FocusColor", &E::FocusColor, Value);
  }
  HRESULT STDMETHODCALLTYPE put_WizardOn(VARIANT_BOOL Value) override { return Put("WizardOn", &E::WizardOn, Value); }
  HRESULT STDMETHODCALLTYPE get_WizardOn(VARIANT_BOOL* Value) override { return Get("WizardOn", &E::WizardOn, Value); }
  HRESULT STDMETHODCALLTYPE get_DeviceType(LONG* Value) override { return Get("DeviceType", &E::DeviceType, Value); }
  HRESULT STDMETHODCALLTYPE put_DeviceType(LONG Value) override { return Put("DeviceType", &E::DeviceType, Value); }
  HRESULT STDMETHODCALLTYPE put_SizeY(short Value) override { return Put("SizeY", &E::SizeY, Value); }
  HRESULT STDMETHODCALLTYPE get_SizeY(short* Value) override { return Get("SizeY", &E::SizeY, Value); }
  HRESULT STDMETHODCALLTYPE put_SizeX(short Value) override { return Put("SizeX", &E::SizeX, Value); }
  HRESULT STDMETHODCALLTYPE get_SizeX(short* Value) override { return Get("SizeX", &E::SizeX, Value); }
  HRESULT STDMETHODCALLTYPE put_ElementType(::enumTactisBaseElementType Value) override {
    return Put("ElementType", &E::ElementType, Value);
  }
  HRESULT STDMETHODCALLTYPE get_ElementType(::enumTactisBaseElementType* Value) override {
    return Get("ElementType", &E::ElementType, Value);
  }
  HRESULT STDMETHODCALLTYPE get_ZoomFactor(short* Value) override { return Get("ZoomFactor", &E::ZoomFactor, Value); }
  HRESULT STDMETHODCALLTYPE put_ZoomFactor(short Value) override { return Put("ZoomFactor", &E::ZoomFactor, Value); }
  HRESULT STDMETHODCALLTYPE put_LEDTypeLayer1(::enumLedType Value) override {
    return Put("LEDTypeLayer1", &E::LEDTypeLayer1, Value);
  }
  HRESULT STDMETHODCALLTYPE get_LEDTypeLayer1(::enumLedType* Value) override {
    return Get("LEDTypeLayer1", &E::LEDTypeLayer1, Value);
  }
  HRESULT STDMETHODCALLTYPE put_LEDTypeLayer2(::enumLedType Value) override {
    return Put("LEDTypeLayer2", &E::LEDTypeLayer2, Value);
  }
  HRESULT STDMETHODCALLTYPE get_LEDTypeLayer2(::enumLedType* Value) override {
    return Get("LEDTypeLayer2", &E::LEDTypeLayer2, Value);
  }
  HRESULT STDMETHODCALLTYPE put_LEDTypeLayer3(::enumLedType Value) override {
    return Put("LEDTypeLayer3", &E::LEDTypeLayer3, Value);
  }
  HRESULT STDMETHODCALLTYPE get_LEDTypeLayer3(::enumLedType* Value) override {
    return Get("LEDTypeLayer3", &E::LEDTypeLayer3, Value);
  }
  HRESULT STDMETHODCALLTYPE put_LEDTypeLayer4(::enumLedType Value) override {
    return Put("LEDTypeLayer4", &E::LEDTypeLayer4, Value);
  }
  HRESULT STDMETHODCALLTYPE get_LEDTypeLayer4(::enumLedType* Value) override {
    return Get("LEDTypeLayer4", &E::LEDTypeLayer4, Value);
  }
  HRESULT STDMETHODCALLTYPE put_ReleaseKeyDefLayer1(BSTR Value) override {
    return Put("ReleaseKeyDefLayer1", &E::ReleaseKeyDefLayer1, Value);
  }
  HRESULT STDMETHODCALLTYPE get_ReleaseKeyDefLayer1(BSTR* Value) override {
    return Get("ReleaseKeyDefLayer1", &E::ReleaseKeyDefLayer1, Value);
  }
  HRESULT STDMETHODCALLTYPE put_ReleaseKeyDefLayer2(BSTR Value) override {
    return Put("ReleaseKeyDefLayer2", &E::ReleaseKeyDefLayer2, Value);
  }
  HRESULT STDMETHODCALLTYPE get_ReleaseKeyDefLayer2(BSTR* Value) override {
    return Get("ReleaseKeyDefLayer2", &E::ReleaseKeyDefLayer2, Value);
  }
  HRESULT STDMETHODCALLTYPE put_ReleaseKeyDefLayer3(BSTR Value) override {
    return Put("ReleaseKeyDefLayer3", &E::ReleaseKeyDefLayer3, Value);
  }
  HRESULT STDMETHODCALLTYPE get_ReleaseKeyDefLayer3(BSTR* Value) override {
    return Get("ReleaseKeyDefLayer3", &E::ReleaseKeyDefLayer3, Value);
  }
  HRESULT STDMETHODCALLTYPE put_ReleaseKeyDefLayer4(BSTR Value) override {
    return Put("ReleaseKeyDefLayer4", &E::ReleaseKeyDefLayer4, Value);
  }
  HRESULT STDMETHODCALLTYPE get_ReleaseKeyDefLayer4(BSTR* Value) override {
    return Get("ReleaseKeyDefLayer4", &E::ReleaseKeyDefLayer4, Value);
  }
  HRESULT STDMETHODCALLTYPE put_PressKeyDefLayer1(BSTR Value) override {
    return Put("PressKeyDefLayer1", &E::PressKeyDefLayer1, Value);
  }
  HRESULT STDMETHODCALLTYPE get_PressKeyDefLayer1(BSTR* Value) override {
    return Get("PressKeyDefLayer1", &E::PressKeyDefLayer1, Value);
  }
  HRESULT STDMETHODCALLTYPE put_PressKeyDefLayer2(BSTR Value) override {
    return Put("PressKeyDefLayer2", &E::PressKeyDefLayer2, Value);
  }
  HRESULT STDMETHODCALLTYPE get_PressKeyDefLayer2(BSTR* Value) override {
    return Get("PressKeyDefLayer2", &E::PressKeyDefLayer2, Value);
  }
  HRESULT STDMETHODCALLTYPE put_PressKeyDefLayer3(BSTR Value) override {
    return Put("PressKeyDefLayer3", &E::PressKeyDefLayer3, Value);
  }
  HRESULT STDMETHODCALLTYPE get_PressKeyDefLayer3(BSTR* Value) override {
    return Get("PressKeyDefLayer3", &E::PressKeyDefLayer3, Value);
  }
  HRESULT STDMETHODCALLTYPE put_PressKeyDefLayer4(BSTR Value) override {
    return Put("PressKeyDefLayer4", &E::PressKeyDefLayer4, Value);
  }
  HRESULT STDMETHODCALLTYPE get_PressKeyDefLayer4(BSTR* Value) override {
    return Get("PressKeyDefLayer4", &E::PressKeyDefLayer4, Value);
  }
  HRESULT STDMETHODCALLTYPE get_OriginalPosX(LONG* Value) override {
    return Get("OriginalPosX", &E::OriginalPosX, Value);
  }
  HRESULT STDMETHODCALLTYPE put_OriginalPosX(LONG Value) override {
    return Put("OriginalPosX", &E::OriginalPosX, Value);
  }
  HRESULT STDMETHODCALLTYPE get_OriginalPosY(LONG* Value) override {
    return Get("OriginalPosY", &E::OriginalPosY, Value);
  }
  HRESULT STDMETHODCALLTYPE put_OriginalPosY(LONG Value) override {
    return Put("OriginalPosY", &E::OriginalPosY, Value);
  }
  HRESULT STDMETHODCALLTYPE get_HardwareNumberKey(LONG* Value) override {
    return Get("HardwareNumberKey", &E::HardwareNumberKey, Value);
  }
  HRESULT STDMETHODCALLTYPE put_HardwareNumberKey(LONG Value) override {
    return Put("HardwareNumberKey", &E::HardwareNumberKey, Value);
  }
  HRESULT STDMETHODCALLTYPE get_HardwareNumberKey1(LONG* Value) override {
    return Get("HardwareNumberKey1", &E::HardwareNumberKey1, Value);
  }
  HRESULT STDMETHODCALLTYPE put_HardwareNumberKey1(LONG Value) override {
    return Put("HardwareNumberKey1", &E::HardwareNumberKey1, Value);
  }
  HRESULT STDMETHODCALLTYPE get_HardwareNumberKey2(LONG* Value) override {
    return Get("HardwareNumberKey2", &E::HardwareNumberKey2, Value);
  }
  HRESULT STDMETHODCALLTYPE put_HardwareNumberKey2(LONG Value) override {
    return Put("HardwareNumberKey2", &E::HardwareNumberKey2, Value);
  }
  HRESULT STDMETHODCALLTYPE get_HardwareNumberKey3(LONG* Value) override {
    return Get("HardwareNumberKey3", &E::HardwareNumberKey3, Value);
  }
  HRESULT STDMETHODCALLTYPE put_HardwareNumberKey3(LONG Value) override {
    return Put("HardwareNumberKey3", &E::HardwareNumberKey3, Value);
  }
  HRESULT STDMETHODCALLTYPE get_HardwareNumberKey4(LONG* Value) override {
    return Get("HardwareNumberKey4", &E::HardwareNumberKey4, Value);
  }
  HRESULT STDMETHODCALLTYPE put_HardwareNumberKey4(LONG Value) override {
    return Put("HardwareNumberKey4", &E::HardwareNumberKey4, Value);
  }
  HRESULT STDMETHODCALLTYPE get_HardwareNumberKey5(LONG* Value) override {
    return Get("HardwareNumberKey5", &E::HardwareNumberKey5, Value);
  }
  HRESULT STDMETHODCALLTYPE put_HardwareNumberKey5(LONG Value) override {
    return Put("HardwareNumberKey5", &E::HardwareNumberKey5, Value);
  }
  HRESULT STDMETHODCALLTYPE get_HardwareNumberKey6(LONG* Value) override {
    return Get("HardwareNumberKey6", &E::HardwareNumberKey6, Value);
  }
  HRESULT STDMETHODCALLTYPE put_HardwareNumberKey6(LONG Value) override {
    return Put("HardwareNumberKey6", &E::HardwareNumberKey6, Value);
  }
  HRESULT STDMETHODCALLTYPE get_HardwareNumberKey7(LONG* Value) override {
    return Get("HardwareNumberKey7", &E::HardwareNumberKey7, Value);
  }
  HRESULT STDMETHODCALLTYPE put_HardwareNumberKey7(LONG Value) override {
    return Put("HardwareNumberKey7", &E::HardwareNumberKey7, Value);
  }
  HRESULT STDMETHODCALLTYPE get_HardwareNumberLed(LONG* Value) override {
    return Get("HardwareNumberLed", &E::HardwareNumberLed, Value);
  }
  HRESULT STDMETHODCALLTYPE put_HardwareNumberLed(LONG Value) override {
    return Put("HardwareNumberLed", &E::HardwareNumberLed, Value);
  }
  HRESULT STDMETHODCALLTYPE get_HardwareNumberButton(LONG* Value) override {
    return Get("HardwareNumberButton", &E::HardwareNumberButton, Value);
  }
  HRESULT STDMETHODCALLTYPE put_HardwareNumberButton(LONG Value) override {
    return Put("HardwareNumberButton", &E::HardwareNumberButton, Value);
  }
  HRESULT STDMETHODCALLTYPE get_ShowDefined(VARIANT_BOOL* Value) override {
    return Get("ShowDefined", &E::ShowDefined, Value);
  }
  HRESULT STDMETHODCALLTYPE put_ShowDefined(VARIANT_BOOL Value) override {
    return Put("ShowDefined", &E::ShowDefined, Value);
  }
  HRESULT STDMETHODCALLTYPE get_KeyDefinedColor(OLE_COLOR* Value) override {
    return Get("KeyDefinedColor", &E::KeyDefinedColor, Value);
  }
  HRESULT STDMETHODCALLTYPE put_KeyDefinedColor(OLE_COLOR Value) override {
    return Put("KeyDefinedColor", &E::KeyDefinedColor, Value);
  }
  HRESULT STDMETHODCALLTYPE put_TactisBaseElementScanCodeBuffer(RecordOutside* Value) override;
  HRESULT STDMETHODCALLTYPE get_TactisBaseElementScanCodeBuffer(RecordOutside* Value) override;
  HRESULT STDMETHODCALLTYPE get_ShowX(VARIANT_BOOL* Value) override { return Get("ShowX", &E::ShowX, Value); }
  HRESULT STDMETHODCALLTYPE put_ShowX(VARIANT_BOOL Value) override { return Put("ShowX", &E::ShowX, Value); }
  HRESULT STDMETHODCALLTYPE get_VantaEnabled(VARIANT_BOOL* Value) override {
    return Get("VantaEnabled", &E::VantaEnabled, Value);
  }
  HRESULT STDMETHODCALLTYPE put_VantaEnabled(VARIANT_BOOL Value) override {
    return Put("VantaEnabled", &E::VantaEnabled, Value);
  }
  HRESULT STDMETHODCALLTYPE get_TargetSystem(BSTR* Value) override {
    return Get("TargetSystem", &E::TargetSystem, Value);
  }
  HRESULT STDMETHODCALLTYPE put_TargetSystem(BSTR Value) override {
    return Put("TargetSystem", &E::TargetSystem, Value);
  }
  HRESULT STDMETHODCALLTYPE get_ButtonNotes(BSTR* Value) override { return Get("ButtonNotes", &E::ButtonNotes, Value); }
  HRESULT STDMETHODCALLTYPE put_ButtonNotes(BSTR Value) override { return Put("ButtonNotes", &E::ButtonNotes, Value); }
  HRESULT STDMETHODCALLTYPE get_ShowXPermanent(VARIANT_BOOL* Value) override {
    return Get("ShowXPermanent", &E::ShowXPermanent, Value);
  }
  HRESULT STDMETHODCALLTYPE put_ShowXPermanent(VARIANT_BOOL Value) override {
    return Put("ShowXPermanent", &E::ShowXPermanent, Value);
  }

  HRESULT STDMETHODCALLTYPE OpenPropertiesDialog() override;
  HRESULT STDMETHODCALLTYPE OpenConfigurationDialog() override;
  HRESULT STDMETHODCALLTYPE UpdateFocus() override;
  HRESULT STDMETHODCALLTYPE Refresh() override;
  HRESULT STDMETHODCALLTYPE ShowDefinedObject(VARIANT_BOOL bVisible) override;
  HRESULT STDMETHODCALLTYPE SetTactisBaseElementDefinition(RecordOutside* udtTactisBaseElementInfo) override;
  HRESULT STDMETHODCALLTYPE CheckIfLedIsAlreadyDefined(::enumLedType LEDType, LONG Layer,
                                                       VARIANT_BOOL* Defined) override;

 private:
  using E = ctlPlexelBaseElement;

  /// A value from outside as a setter takes it.
  template <typename Inside, typename Outside>
  static Inside In(Outside value) {
    if constexpr (std::is_same_v<Inside, Boolean>) {
      return Boolean::Raw(value);
    } else if constexpr (std::is_same_v<Inside, std::string>) {
      return NarrowOf(value);
    } else {
      return static_cast<Inside>(value);
    }
  }
  /// A value from inside as hosts take it.
  template <typename Outside, typename Inside>
  static Outside Out(const Inside& value) {
    if constexpr (std::is_same_v<Inside, Boolean>) {
      return value.Value();
    } else if constexpr (std::is_same_v<Inside, std::string>) {
      return NewBstr(value);
    } else {
      return static_cast<Outside>(value);
    }
  }

  template <typename Inside, typename Outside>
  [[gnu::always_inline]] inline HRESULT Put(const std::string_view& name, void (E::*set)(Inside), Outside value) {
    return TheControl().Run(name,
                            [&] { (TheControl().TheElement().*set)(In<std::remove_cvref_t<Inside>, Outside>(value)); });
  }
  template <typename Inside, typename Outside>
  [[gnu::always_inline]] inline HRESULT Get(const std::string_view& name, Inside (E::*get)() const, Outside* value) {
    if (value == nullptr) return E_POINTER;
    return Guarded(name, [&] {
      *value = Out<Outside>((TheControl().TheElement().*get)());
      return S_OK;
    });
  }

  Dispatch dispatch_;
};

}  // namespace plexel::activex

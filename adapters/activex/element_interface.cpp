#include "activex/element_interface.h"

#include "activex/host_form.h"

namespace plexel::activex {

HRESULT ElementInterface::putref_ParentWindow(IDispatch* Value) {
  return TheControl().Run("ParentWindow", [&] {
    TheControl().TheElement().ParentWindow(Value == nullptr ? nullptr : std::make_shared<HostForm>(Value));
  });
}

HRESULT ElementInterface::get_ParentWindow(IDispatch** Value) {
  if (Value == nullptr) return E_POINTER;
  return Guarded("ParentWindow", [&] {
    const auto form = std::dynamic_pointer_cast<HostForm>(TheControl().TheElement().ParentWindow());
    *Value = form == nullptr ? nullptr : form->Object().Shared();
    return S_OK;
  });
}

HRESULT ElementInterface::put_TactisBaseElementScanCodeBuffer(RecordOutside* Value) {
  if (Value == nullptr) return E_POINTER;
  return TheControl().Run("TactisBaseElementScanCodeBuffer",
                          [&] { TheControl().TheElement().TactisBaseElementScanCodeBuffer(FromOutside(*Value)); });
}

HRESULT ElementInterface::get_TactisBaseElementScanCodeBuffer(RecordOutside* Value) {
  if (Value == nullptr) return E_POINTER;
  return Guarded("TactisBaseElementScanCodeBuffer", [&] {
    ToOutside(TheControl().TheElement().TactisBaseElementScanCodeBuffer(), *Value);
    return S_OK;
  });
}

HRESULT ElementInterface::OpenPropertiesDialog() {
  return TheControl().Run("OpenPropertiesDialog",
                          [&] { TheControl().RunDialog([&] { TheControl().TheElement().OpenPropertiesDialog(); }); });
}

HRESULT ElementInterface::OpenConfigurationDialog() {
  return TheControl().Run("OpenConfigurationDialog", [&] {
    TheControl().RunDialog([&] { TheControl().TheElement().OpenConfigurationDialog(); });
  });
}

HRESULT ElementInterface::UpdateFocus() {
  return TheControl().Run("UpdateFocus", [&] { TheControl().TheElement().UpdateFocus(); });
}

HRESULT ElementInterface::Refresh() {
  return TheControl().Run("Refresh", [&] { TheControl().TheElement().Refresh(); });
}

HRESULT ElementInterface::ShowDefinedObject(VARIANT_BOOL bVisible) {
  return TheControl().Run("ShowDefinedObject",
                          [&] { TheControl().TheElement().ShowDefinedObject(Boolean::Raw(bVisible)); });
}

HRESULT ElementInterface::SetTactisBaseElementDefinition(RecordOutside* udtTactisBaseElementInfo) {
  if (udtTactisBaseElementInfo == nullptr) return E_POINTER;
  return TheControl().Run("SetTactisBaseElementDefinition", [&] {
    TheControl().TheElement().SetTactisBaseElementDefinition(FromOutside(*udtTactisBaseElementInfo));
  });
}

HRESULT ElementInterface::CheckIfLedIsAlreadyDefined(::enumLedType LEDType, LONG Layer, VARIANT_BOOL* Defined) {
  if (Defined == nullptr) return E_POINTER;
  *Defined = VARIANT_FALSE;
  return TheControl().Run("CheckIfLedIsAlreadyDefined", [&] {
    *Defined =
        TheControl().TheElement().CheckIfLedIsAlreadyDefined(static_cast<plexel::enumLedType>(LEDType), Layer).Value();
  });
}

}  // namespace plexel::activex

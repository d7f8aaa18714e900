#include "activex/in_place_object.h"

#include "activex/in_place_window.h"

namespace plexel::activex {

HRESULT InPlaceObject::GetWindow(HWND* window) {
  if (window == nullptr) return E_POINTER;
  *window = TheControl().Place().Handle();
  return *window == nullptr ? E_FAIL : S_OK;
}

HRESULT InPlaceObject::ContextSensitiveHelp(WINBOOL) { return E_NOTIMPL; }

HRESULT InPlaceObject::InPlaceDeactivate() {
  return TheControl().Run("InPlaceDeactivate", [&] { TheControl().Place().Deactivate(); });
}

HRESULT InPlaceObject::UIDeactivate() {
  return TheControl().Run("UIDeactivate", [&] { TheControl().Place().DeactivateInterface(); });
}

HRESULT InPlaceObject::SetObjectRects(LPCRECT place, LPCRECT clip) {
  if (place == nullptr || clip == nullptr) return E_POINTER;
  return TheControl().Run("SetObjectRects", [&] { TheControl().Place().Move(*place, *clip); });
}

HRESULT InPlaceObject::ReactivateAndUndo() { return INPLACE_E_NOTUNDOABLE; }

}  // namespace plexel::activex

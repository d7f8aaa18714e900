#include "host/control_site.h"

#include <PlexelBaseElement.h>
#include <olectl.h>

#include <exception>

#include "win32/bstr.h"

namespace plexel::host {

void* ControlSite::Find(REFIID iid) {
  if (iid == __uuidof(IOleWindow)) return static_cast<IOleInPlaceSite*>(this);
  return ComObject::Find(iid);
}

HRESULT ControlSite::SaveObject() { return E_NOTIMPL; }

HRESULT ControlSite::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
  if (moniker == nullptr) return E_POINTER;
  *moniker = nullptr;
  return E_NOTIMPL;
}

HRESULT ControlSite::GetContainer(IOleContainer** container) {
  return container_.Get()->QueryInterface(__uuidof(IOleContainer), reinterpret_cast<void**>(container));
}

HRESULT ControlSite::ShowObject() { return S_OK; }

HRESULT ControlSite::OnShowWindow(WINBOOL) { return S_OK; }

HRESULT ControlSite::RequestNewObjectLayout() { return E_NOTIMPL; }

HRESULT ControlSite::GetWindow(HWND* window) {
  if (window == nullptr) return E_POINTER;
  *window = container_->ground;
  return *window == nullptr ? E_FAIL : S_OK;
}

HRESULT ControlSite::ContextSensitiveHelp(WINBOOL) { return E_NOTIMPL; }

HRESULT ControlSite::CanInPlaceActivate() { return container_->ground == nullptr ? S_FALSE : S_OK; }

HRESULT ControlSite::OnInPlaceActivate() { return S_OK; }

HRESULT ControlSite::OnUIActivate() { return S_OK; }

HRESULT ControlSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT position,
                                      LPRECT clip, LPOLEINPLACEFRAMEINFO info) {
  if (frame == nullptr || document == nullptr || position == nullptr || clip == nullptr || info == nullptr) {
    return E_POINTER;
  }
  *document = nullptr;  // the frame is the only window around
  *position = *clip = place;
  info->fMDIApp = FALSE;
  info->hwndFrame = container_->frame;
  info->haccel = nullptr;
  info->cAccelEntries = 0;
  return container_.Get()->QueryInterface(__uuidof(IOleInPlaceFrame), reinterpret_cast<void**>(frame));
}

HRESULT ControlSite::Scroll(SIZE) { return S_FALSE; }

HRESULT ControlSite::OnUIDeactivate(WINBOOL) { return S_OK; }

HRESULT ControlSite::OnInPlaceDeactivate() { return S_OK; }

HRESULT ControlSite::DiscardUndoState() { return E_NOTIMPL; }

HRESULT ControlSite::DeactivateAndUndo() { return E_NOTIMPL; }

/// A control may have the size that its element tells.
HRESULT ControlSite::OnPosRectChange(LPCRECT wanted) {
  if (wanted == nullptr) return E_POINTER;
  place = *wanted;
  return object == nullptr ? S_OK : object->SetObjectRects(&place, &place);
}

HRESULT ControlSite::OnControlInfoChanged() { return S_OK; }

HRESULT ControlSite::LockInPlaceActive(WINBOOL) { return S_OK; }

HRESULT ControlSite::GetExtendedControl(IDispatch** control) {
  if (control == nullptr) return E_POINTER;
  *control = nullptr;
  return E_NOTIMPL;
}

HRESULT ControlSite::TransformCoords(POINTL*, POINTF*, DWORD) { return E_NOTIMPL; }

HRESULT ControlSite::TranslateAccelerator(MSG* message, DWORD) {
  if (message == nullptr) return E_POINTER;
  try {
    return container_->offeredKey && container_->offeredKey(name_, *message) ? S_OK : S_FALSE;
  } catch (const std::exception&) {  // the key is left to whoever wants it
    return S_FALSE;
  }
}

HRESULT ControlSite::OnFocus(WINBOOL got) {
  try {
    if (got != FALSE && container_->gotKeys) container_->gotKeys(name_);
    return S_OK;
  } catch (const std::exception&) {
    return E_FAIL;
  }
}

HRESULT ControlSite::ShowPropertyFrame() { return E_NOTIMPL; }

HRESULT ControlSite::QueryService(REFGUID service, REFIID iid, void** given) {
  if (given == nullptr) return E_POINTER;
  *given = nullptr;
  if (service != __uuidof(IPlexelLanguage) || !container_->language) return E_NOINTERFACE;
  return container_->language->QueryInterface(iid, given);
}

HRESULT ControlSite::Invoke(DISPID number, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* answer, EXCEPINFO*, UINT*) {
  if (answer == nullptr) return E_POINTER;
  switch (number) {
    case DISPID_AMBIENT_BACKCOLOR:
      V_VT(answer) = VT_I4;
      V_I4(answer) = static_cast<LONG>(container_->groundColour);
      return S_OK;
    case DISPID_AMBIENT_USERMODE:
      V_VT(answer) = VT_BOOL;
      V_BOOL(answer) = VARIANT_TRUE;
      return S_OK;
    case DISPID_AMBIENT_DISPLAYNAME:
      V_BSTR(answer) = NewBstr(name_);
      V_VT(answer) = VT_BSTR;
      return S_OK;
    default:
      return DISP_E_MEMBERNOTFOUND;
  }
}

}  // namespace plexel::host

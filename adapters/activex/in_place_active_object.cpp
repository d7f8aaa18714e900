#include "activex/in_place_active_object.h"

#include <ocidl.h>

#include "activex/in_place_window.h"

namespace plexel::activex {

HRESULT InPlaceActiveObject::GetWindow(HWND* window) {
  if (window == nullptr) return E_POINTER;
  *window = TheControl().Place().Handle();
  return *window == nullptr ? E_FAIL : S_OK;
}

HRESULT InPlaceActiveObject::ContextSensitiveHelp(WINBOOL) { return E_NOTIMPL; }

/// Return goes to the control's window while the focus is shown; all other keys are offered to the container.
HRESULT InPlaceActiveObject::TranslateAccelerator(LPMSG message) {
  if (message == nullptr) return E_POINTER;
  return TheControl().Run("TranslateAccelerator", [&] {
    const bool key = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    if (!key) return S_FALSE;
    if (message->wParam == VK_RETURN && message->hwnd == TheControl().Place().Handle() &&
        IsTrue(TheControl().TheElement().FocusVisible())) {
      TranslateMessage(message);
      DispatchMessageW(message);
      return S_OK;
    }
    const auto site = As<IOleControlSite>(TheControl().Site());
    return site ? site->TranslateAccelerator(message, 0) : S_FALSE;
  });
}

HRESULT InPlaceActiveObject::OnFrameWindowActivate(WINBOOL) { return S_OK; }

HRESULT InPlaceActiveObject::OnDocWindowActivate(WINBOOL) { return S_OK; }

HRESULT InPlaceActiveObject::ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window, WINBOOL) {
  return border == nullptr || window == nullptr ? E_POINTER : S_OK;
}

HRESULT InPlaceActiveObject::EnableModeless(WINBOOL) { return S_OK; }

}  // namespace plexel::activex

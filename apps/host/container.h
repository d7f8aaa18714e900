#pragma once

#include <ole2.h>
#include <windows.h>
#include <wrl/client.h>

#include <functional>
#include <string>

#include "host/com_object.h"
#include "host/element_event.h"

namespace plexel::host {

/// The container as controls see it: the frame around them, a form by its `hWnd`, and who answers
/// CheckIfLedIsAlreadyDefined. What it has to say and to ask goes to whoever has made it; an exception from there
/// becomes a failed call.
class Container : public ComObject<IOleContainer, IOleInPlaceFrame, DispatchPart<IDispatch>> {
 public:
  /// The program's window, that in which controls lie, and its colour. Without windows no control becomes active.
  HWND frame = nullptr, ground = nullptr;
  COLORREF groundColour = 0xFFFFFF;
  /// The host's own texts for the dialogs; null for none.
  Microsoft::WRL::ComPtr<IUnknown> language;
  /// Whether a control of the panel shows the LED function in the layer.
  std::function<bool(LONG type, LONG layer)> ledIsDefined;
  /// Hears what the control of a place tells, and that it has got the keys.
  std::function<void(const std::string& place, const ElementEvent& event)> heard;
  std::function<void(const std::string& place)> gotKeys;
  /// A key that the control of a place leaves to its container; whether that was of use.
  std::function<bool(const std::string& place, const MSG& message)> offeredKey;

  /// The control that has the keys; null for none.
  const Microsoft::WRL::ComPtr<IOleInPlaceActiveObject>& Active() const { return active_; }
  /// Forgets all that is told above: whoever did it goes, and controls may hold the container still.
  void Leave();

  HRESULT STDMETHODCALLTYPE ParseDisplayName(IBindCtx* context, LPOLESTR name, ULONG* eaten,
                                             IMoniker** moniker) override;
  HRESULT STDMETHODCALLTYPE EnumObjects(DWORD flags, IEnumUnknown** objects) override;
  HRESULT STDMETHODCALLTYPE LockContainer(WINBOOL lock) override;

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(WINBOOL enter) override;
  HRESULT STDMETHODCALLTYPE GetBorder(LPRECT border) override;
  HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS widths) override;
  HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS widths) override;
  HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* active, LPCOLESTR name) override;
  HRESULT STDMETHODCALLTYPE InsertMenus(HMENU menu, LPOLEMENUGROUPWIDTHS widths) override;
  HRESULT STDMETHODCALLTYPE SetMenu(HMENU menu, HOLEMENU shared, HWND window) override;
  HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU menu) override;
  HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR text) override;
  HRESULT STDMETHODCALLTYPE EnableModeless(WINBOOL enable) override;
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message, WORD command) override;

  HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID, LCID, WORD way, DISPPARAMS* arguments, VARIANT* answer,
                                   EXCEPINFO* error, UINT* wrong) override;

 protected:
  void* Find(REFIID iid) override;
  std::span<const NamedMember> Members() const override;

 private:
  HRESULT AnswerLed(const DISPPARAMS& arguments, VARIANT* answer) const;

  Microsoft::WRL::ComPtr<IOleInPlaceActiveObject> active_;
};

}  // namespace plexel::host

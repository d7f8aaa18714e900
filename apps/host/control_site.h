#pragma once

#include <ocidl.h>
#include <ole2.h>
#include <servprov.h>
#include <wrl/client.h>

#include <string>
#include <utility>

#include "host/com_object.h"
#include "host/container.h"

namespace plexel::host {

/// The place of one control in the container.
class ControlSite
    : public ComObject<IOleClientSite, IOleInPlaceSite, IOleControlSite, IServiceProvider, DispatchPart<IDispatch>> {
 public:
  /// `name`: of the place, UTF-8.
  ControlSite(Container& container, std::string name) : container_(&container), name_(std::move(name)) {}

  /// Where the control lies in the ground, in pixels.
  RECT place = {};
  /// The control in its place, as long as there is one.
  IOleInPlaceObject* object = nullptr;

  const std::string& Name() const { return name_; }
  Container& TheContainer() const { return *container_.Get(); }

  HRESULT STDMETHODCALLTYPE SaveObject() override;
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
  HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override;
  HRESULT STDMETHODCALLTYPE ShowObject() override;
  HRESULT STDMETHODCALLTYPE OnShowWindow(WINBOOL show) override;
  HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override;

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(WINBOOL enter) override;
  HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override;
  HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override;
  HRESULT STDMETHODCALLTYPE OnUIActivate() override;
  HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT position,
                                             LPRECT clip, LPOLEINPLACEFRAMEINFO info) override;
  HRESULT STDMETHODCALLTYPE Scroll(SIZE extent) override;
  HRESULT STDMETHODCALLTYPE OnUIDeactivate(WINBOOL undoable) override;
  HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override;
  HRESULT STDMETHODCALLTYPE DiscardUndoState() override;
  HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override;
  HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT wanted) override;

  HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override;
  HRESULT STDMETHODCALLTYPE LockInPlaceActive(WINBOOL lock) override;
  HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** control) override;
  HRESULT STDMETHODCALLTYPE TransformCoords(POINTL* himetric, POINTF* own, DWORD flags) override;
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message, DWORD modifiers) override;
  HRESULT STDMETHODCALLTYPE OnFocus(WINBOOL got) override;
  HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override;

  /// The host's own language service.
  HRESULT STDMETHODCALLTYPE QueryService(REFGUID service, REFIID iid, void** object) override;

  /// The ambient properties: the colour of the ground, the name of the place, and that a user works here.
  HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID, LCID, WORD way, DISPPARAMS* arguments, VARIANT* answer,
                                   EXCEPINFO* error, UINT* wrong) override;

 protected:
  void* Find(REFIID iid) override;

 private:
  Microsoft::WRL::ComPtr<Container> container_;
  std::string name_;
};

}  // namespace plexel::host

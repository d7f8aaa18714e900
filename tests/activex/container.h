#pragma once

#include <ocidl.h>
#include <ole2.h>
#include <servprov.h>
#include <windows.h>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "activex/library.h"
#include "activex/object.h"

namespace plexel::activex {

/// A container of one control, with a window. It offers all that it has but for what a test takes away, and says that
/// it has what a test makes it lie about.
class Container : public TestObject<IOleClientSite, IOleInPlaceSite, IOleControlSite, IOleInPlaceFrame,
                                    IServiceProvider, IOleContainer, NoNames<IDispatch>> {
 public:
  /// With a window of its own, or in that of another container, which then owns it.
  explicit Container(HWND others = nullptr);
  ~Container() override;

  /// Interfaces that it does not have, and those that it says it has while it gives null.
  std::vector<IID> lacking, lying;
  /// Interfaces that the container as such lacks (CheckIfLedIsAlreadyDefined is asked of it by name).
  bool answersLeds = true;
  std::optional<IUnknown*> extended;
  /// Answers of CheckIfLedIsAlreadyDefined by LED and layer.
  std::set<std::pair<int, int>> defined;
  /// Services by their identifiers.
  std::map<std::string, IUnknown*> services;
  /// What it was called, by the names of the calls.
  std::vector<std::string> calls;
  /// Called at each call.
  std::function<void(const std::string&)> onCall;
  /// What calls answer that may fail.
  HRESULT canActivate = S_OK, context = S_OK, canTakeKeys = S_OK;
  HWND window = nullptr;
  RECT place = {10, 20, 110, 70};

  /// Puts a control in and makes it active.
  HRESULT Place(IUnknown* control, bool withKeys = false);
  /// Takes it out as containers do.
  void TakeOut();
  HWND ControlWindow();
  const ComPointer<IOleObject>& Object() const { return object_; }
  static void Pump();

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;

  HRESULT STDMETHODCALLTYPE SaveObject() override { return Called("SaveObject"); }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override;
  HRESULT STDMETHODCALLTYPE ShowObject() override { return Called("ShowObject"); }
  HRESULT STDMETHODCALLTYPE OnShowWindow(WINBOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* given) override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(WINBOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override;
  HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return Called("OnInPlaceActivate"); }
  HRESULT STDMETHODCALLTYPE OnUIActivate() override {
    return FAILED(canTakeKeys) ? canTakeKeys : Called("OnUIActivate");
  }
  HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT position,
                                             LPRECT clip, LPOLEINPLACEFRAMEINFO info) override;
  HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnUIDeactivate(WINBOOL) override { return Called("OnUIDeactivate"); }
  HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return Called("OnInPlaceDeactivate"); }
  HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT wanted) override;

  HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE LockInPlaceActive(WINBOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** control) override;
  HRESULT STDMETHODCALLTYPE TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*, DWORD) override { return S_FALSE; }
  HRESULT STDMETHODCALLTYPE OnFocus(WINBOOL got) override { return Called(got != FALSE ? "OnFocus" : "OnFocus lost"); }
  HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetBorder(LPRECT) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* active, LPCOLESTR) override;
  HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE EnableModeless(WINBOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }

  HRESULT STDMETHODCALLTYPE QueryService(REFGUID service, REFIID iid, void** object) override;

  HRESULT STDMETHODCALLTYPE ParseDisplayName(IBindCtx*, LPOLESTR, ULONG*, IMoniker**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumObjects(DWORD, IEnumUnknown**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE LockContainer(WINBOOL) override { return S_OK; }

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* numbers) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT* answer,
                                   EXCEPINFO*, UINT*) override;

  ComPointer<IOleInPlaceActiveObject> active;

 protected:
  IUnknown* Identity() override { return static_cast<IOleClientSite*>(this); }

 private:
  bool owns_;
  HRESULT Called(const char* name);
  ComPointer<IOleObject> object_;
};

std::string NameOf(REFGUID id);

}  // namespace plexel::activex

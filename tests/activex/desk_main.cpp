// An object with which scripts of the tests hear a control's events: it places the control in a container and clicks on
// it.

#include <PlexelBaseElement.h>
#include <ole2.h>
#include <windows.h>

#include <memory>
#include <string>

#include "activex/com_pointer.h"
#include "activex/container.h"
#include "activex/late.h"
#include "activex/sinks.h"
#include "win32/variant.h"

namespace plexel::activex {

namespace {

class Desk : public NoNames<IDispatch> {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    const bool known = iid == __uuidof(IUnknown) || iid == __uuidof(IDispatch);
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++holds_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG holds = --holds_;
    if (holds == 0) delete this;
    return holds;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* numbers) override {
    static constexpr const wchar_t* members[] = {L"hWnd", L"Listen", L"Click", L"Heard", L"Leave"};
    *numbers = DISPID_UNKNOWN;
    for (int index = 0; index < 5; ++index) {
      if (std::wstring(names[0]) == members[index]) *numbers = index + 1;
    }
    return *numbers == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT* answer,
                                   EXCEPINFO*, UINT*) override {
    switch (member) {
      case 1:
        if (answer != nullptr) *answer = Number(static_cast<long>(reinterpret_cast<INT_PTR>(container_.window)));
        return S_OK;
      case 2:
        return Listen(arguments->rgvarg[0]);
      case 3:
        SendMessageW(container_.ControlWindow(), WM_LBUTTONUP, 0, MAKELPARAM(1, 2));
        return S_OK;
      case 4:
        V_VT(answer) = VT_BSTR;
        V_BSTR(answer) = SysAllocString(sink_.heard.empty() ? L"nothing" : sink_.heard.front().c_str());
        return S_OK;
      case 5:
        connection_.reset();
        container_.TakeOut();
        return S_OK;
      default:
        return DISP_E_MEMBERNOTFOUND;
    }
  }

 private:
  virtual ~Desk() = default;

  HRESULT Listen(VARIANT& given) {
    Variant control;
    VariantCopyInd(&control.Get(), &given);
    if (V_VT(&control.Get()) != VT_DISPATCH) return DISP_E_TYPEMISMATCH;
    connection_ = std::make_unique<Connection>(V_DISPATCH(&control.Get()), __uuidof(__ctlPlexelBaseElement), &sink_);
    return container_.Place(V_DISPATCH(&control.Get()));
  }

  ULONG holds_ = 0;
  Container container_;
  EventSink sink_;
  std::unique_ptr<Connection> connection_;
};

class Factory : public TestObject<IClassFactory> {
 public:
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID iid, void** object) override {
    return ComPointer<IDispatch>(new Desk)->QueryInterface(iid, object);
  }
  HRESULT STDMETHODCALLTYPE LockServer(WINBOOL) override { return S_OK; }
};

}  // namespace

}  // namespace plexel::activex

extern "C" __declspec(dllexport) HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID, REFIID iid, void** object) {
  static plexel::activex::Factory factory;
  return factory.QueryInterface(iid, object);
}

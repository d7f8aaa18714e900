#include "activex/container.h"

#include <olectl.h>

#include <algorithm>

namespace plexel::activex {

namespace {

constexpr DISPID LedQuestion = 77;
constexpr COLORREF Ground = RGB(0, 0, 255);

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wide, LPARAM wider) {
  return DefWindowProcW(window, message, wide, wider);
}

const wchar_t* WindowKind() {
  static const wchar_t* const name = [] {
    WNDCLASSW kind{};
    kind.lpfnWndProc = WindowProcedure;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.hbrBackground = CreateSolidBrush(RGB(255, 255, 255));
    kind.lpszClassName = L"PlexelTests.Container";
    RegisterClassW(&kind);
    return kind.lpszClassName;
  }();
  return name;
}

}  // namespace

std::string NameOf(REFGUID id) {
  wchar_t text[40] = {};
  StringFromGUID2(id, text, 40);
  return {text, text + 38};
}

Container::Container(HWND others) : owns_(others == nullptr) {
  window = others;
  if (!owns_) return;
  window = CreateWindowExW(0, WindowKind(), L"container", WS_POPUP | WS_VISIBLE, 0, 0, 400, 300, nullptr, nullptr,
                           GetModuleHandleW(nullptr), nullptr);
}

Container::~Container() {
  TakeOut();
  if (owns_ && IsWindow(window) != FALSE) DestroyWindow(window);
}

HRESULT Container::Place(IUnknown* control, bool withKeys) {
  object_ = As<IOleObject>(control);
  object_->SetClientSite(this);
  return object_->DoVerb(withKeys ? OLEIVERB_UIACTIVATE : OLEIVERB_INPLACEACTIVATE, nullptr, this, 0, window, &place);
}

void Container::TakeOut() {
  const ComPointer<IOleObject> object = std::move(object_);
  object_ = nullptr;
  active = nullptr;
  if (!object) return;
  object->Close(OLECLOSE_NOSAVE);
  object->SetClientSite(nullptr);
}

HWND Container::ControlWindow() {
  HWND found = nullptr;
  if (const auto inPlace = As<IOleInPlaceObject>(object_)) inPlace->GetWindow(&found);
  return found;
}

void Container::Pump() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

HRESULT Container::QueryInterface(REFIID iid, void** object) {
  *object = nullptr;
  if (std::find(lying.begin(), lying.end(), iid) != lying.end()) return S_OK;
  if (std::find(lacking.begin(), lacking.end(), iid) != lacking.end()) return E_NOINTERFACE;
  return TestObject::QueryInterface(iid == __uuidof(IOleWindow) ? __uuidof(IOleInPlaceSite) : iid, object);
}

HRESULT Container::Called(const char* name) {
  calls.emplace_back(name);
  if (onCall) onCall(name);
  return S_OK;
}

HRESULT Container::GetContainer(IOleContainer** container) {
  return QueryInterface(__uuidof(IOleContainer), reinterpret_cast<void**>(container));
}

HRESULT Container::GetWindow(HWND* given) {
  *given = window;
  return window == nullptr ? E_FAIL : S_OK;
}

HRESULT Container::CanInPlaceActivate() { return canActivate; }

HRESULT Container::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT position,
                                    LPRECT clip, LPOLEINPLACEFRAMEINFO) {
  *frame = nullptr;
  *document = nullptr;
  if (FAILED(context)) return context;
  QueryInterface(__uuidof(IOleInPlaceFrame), reinterpret_cast<void**>(frame));
  *position = place;
  *clip = place;
  return S_OK;
}

HRESULT Container::OnPosRectChange(LPCRECT wanted) {
  Called("OnPosRectChange");
  place = *wanted;
  if (const auto inPlace = As<IOleInPlaceObject>(object_)) inPlace->SetObjectRects(&place, &place);
  return S_OK;
}

HRESULT Container::GetExtendedControl(IDispatch** control) {
  *control = nullptr;
  return extended && *extended != nullptr
             ? (*extended)->QueryInterface(__uuidof(IDispatch), reinterpret_cast<void**>(control))
             : E_NOTIMPL;
}

HRESULT Container::SetActiveObject(IOleInPlaceActiveObject* now, LPCOLESTR) {
  active = ComPointer<IOleInPlaceActiveObject>(now);
  return Called(now == nullptr ? "SetActiveObject none" : "SetActiveObject");
}

HRESULT Container::QueryService(REFGUID service, REFIID iid, void** object) {
  *object = nullptr;
  const auto found = services.find(NameOf(service));
  return found == services.end() ? E_NOINTERFACE : found->second->QueryInterface(iid, object);
}

HRESULT Container::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* numbers) {
  const bool asked = answersLeds && std::wstring(names[0]) == L"CheckIfLedIsAlreadyDefined";
  *numbers = asked ? LedQuestion : DISPID_UNKNOWN;
  return asked ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT Container::Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT* answer, EXCEPINFO*,
                          UINT*) {
  if (member == DISPID_AMBIENT_BACKCOLOR) {
    V_VT(answer) = VT_I4;
    V_I4(answer) = static_cast<LONG>(Ground);
    return S_OK;
  }
  if (member != LedQuestion) return DISP_E_MEMBERNOTFOUND;
  Called("CheckIfLedIsAlreadyDefined");
  if (arguments->cArgs != 2 || V_VT(&arguments->rgvarg[0]) != (VT_BYREF | VT_I4)) return DISP_E_TYPEMISMATCH;
  V_VT(answer) = VT_BOOL;
  V_BOOL(answer) = defined.count({*V_I4REF(&arguments->rgvarg[1]), *V_I4REF(&arguments->rgvarg[0])}) != 0
                       ? VARIANT_TRUE
                       : VARIANT_FALSE;
  return S_OK;
}

}  // namespace plexel::activex

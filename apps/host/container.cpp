#include "host/container.h"

#include <array>
#include <cstdint>
#include <exception>

namespace plexel::host {

namespace {

constexpr DISPID Question = 1, WindowHandle = 2;
constexpr std::array members = {NamedMember{L"CheckIfLedIsAlreadyDefined", Question},
                                NamedMember{L"hWnd", WindowHandle}};

}  // namespace

void Container::Leave() {
  frame = ground = nullptr;
  language = nullptr;
  ledIsDefined = nullptr;
  heard = nullptr;
  gotKeys = nullptr;
  offeredKey = nullptr;
  active_ = nullptr;
}

void* Container::Find(REFIID iid) {
  if (iid == __uuidof(IParseDisplayName)) return static_cast<IOleContainer*>(this);
  if (iid == __uuidof(IOleWindow) || iid == __uuidof(IOleInPlaceUIWindow)) return static_cast<IOleInPlaceFrame*>(this);
  return ComObject::Find(iid);
}

std::span<const NamedMember> Container::Members() const { return members; }

HRESULT Container::ParseDisplayName(IBindCtx*, LPOLESTR, ULONG*, IMoniker** moniker) {
  if (moniker == nullptr) return E_POINTER;
  *moniker = nullptr;
  return E_NOTIMPL;
}

HRESULT Container::EnumObjects(DWORD, IEnumUnknown** objects) {
  if (objects == nullptr) return E_POINTER;
  *objects = nullptr;
  return E_NOTIMPL;
}

HRESULT Container::LockContainer(WINBOOL) { return S_OK; }

HRESULT Container::GetWindow(HWND* window) {
  if (window == nullptr) return E_POINTER;
  *window = frame;
  return frame == nullptr ? E_FAIL : S_OK;
}

HRESULT Container::ContextSensitiveHelp(WINBOOL) { return E_NOTIMPL; }

HRESULT Container::GetBorder(LPRECT) { return INPLACE_E_NOTOOLSPACE; }

HRESULT Container::RequestBorderSpace(LPCBORDERWIDTHS) { return INPLACE_E_NOTOOLSPACE; }

HRESULT Container::SetBorderSpace(LPCBORDERWIDTHS widths) { return widths == nullptr ? S_OK : INPLACE_E_NOTOOLSPACE; }

HRESULT Container::SetActiveObject(IOleInPlaceActiveObject* active, LPCOLESTR) {
  active_ = active;
  return S_OK;
}

HRESULT Container::InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) { return E_NOTIMPL; }

HRESULT Container::SetMenu(HMENU, HOLEMENU, HWND) { return S_OK; }

HRESULT Container::RemoveMenus(HMENU) { return E_NOTIMPL; }

HRESULT Container::SetStatusText(LPCOLESTR) { return S_OK; }

HRESULT Container::EnableModeless(WINBOOL) { return S_OK; }

HRESULT Container::TranslateAccelerator(LPMSG, WORD) { return S_FALSE; }

HRESULT Container::Invoke(DISPID number, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT* answer, EXCEPINFO*,
                          UINT*) {
  if (arguments == nullptr) return E_POINTER;
  if (number == Question) return AnswerLed(*arguments, answer);
  if (number != WindowHandle) return DISP_E_MEMBERNOTFOUND;
  if (answer != nullptr) {
    const auto handle = reinterpret_cast<std::intptr_t>(frame);
    V_VT(answer) = sizeof handle == sizeof(LONG) ? VT_I4 : VT_I8;
    V_I8(answer) = handle;  // whose lower half is the shorter number
  }
  return S_OK;
}

HRESULT Container::AnswerLed(const DISPPARAMS& arguments, VARIANT* answer) const {
  if (arguments.cArgs != 2) return DISP_E_BADPARAMCOUNT;
  LONG type = 0, layer = 0;
  if (const HRESULT result = TakeNumber(arguments.rgvarg[1], type); FAILED(result)) return result;
  if (const HRESULT result = TakeNumber(arguments.rgvarg[0], layer); FAILED(result)) return result;
  bool defined = false;
  try {
    defined = ledIsDefined && ledIsDefined(type, layer);
  } catch (const std::exception&) {  // the control tells that the question has failed
    return E_FAIL;
  }
  if (answer != nullptr) {
    V_VT(answer) = VT_BOOL;
    V_BOOL(answer) = defined ? VARIANT_TRUE : VARIANT_FALSE;
  }
  return S_OK;
}

}  // namespace plexel::host

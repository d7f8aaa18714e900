#include "activex/in_place_window.h"

#include <ocidl.h>
#include <olectl.h>

#include "activex/class_facts.h"
#include "activex/units.h"

namespace plexel::activex {

namespace {

constexpr const wchar_t* ClassName = L"PlexelBaseElement.Surface";

bool Register(WNDPROC procedure) {
  WNDCLASSW kind{};
  kind.style = CS_DBLCLKS;
  kind.lpfnWndProc = procedure;
  kind.hInstance = module::Instance();
  kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  kind.lpszClassName = ClassName;
  return RegisterClassW(&kind) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

SIZE SizeOf(const RECT& place) { return {place.right - place.left, place.bottom - place.top}; }

}  // namespace

void InPlaceWindow::Unregister() { UnregisterClassW(ClassName, module::Instance()); }

ComPointer<IOleInPlaceSite> InPlaceWindow::Site() const { return As<IOleInPlaceSite>(control_.Site()); }

HRESULT InPlaceWindow::Activate(bool withKeys) {
  const auto site = Site();
  if (!site) return E_FAIL;
  if (!active_) {
    if (const HRESULT result = Open(*site.Get()); FAILED(result)) return result;
  }
  if (const ComPointer<IOleClientSite> client(control_.Site()); client) client->ShowObject();
  if (window_ == nullptr) return E_FAIL;  // the container may have thought better of it
  ShowWindow(window_, SW_SHOWNA);
  return withKeys ? ActivateInterface(*site.Get()) : S_OK;
}

HRESULT InPlaceWindow::Open(IOleInPlaceSite& site) {
  if (site.CanInPlaceActivate() != S_OK) return E_FAIL;
  if (const HRESULT result = site.OnInPlaceActivate(); FAILED(result)) return result;
  const HRESULT result = OpenWithin(site);
  active_ = SUCCEEDED(result);
  if (active_) return result;
  frame_ = nullptr;
  document_ = nullptr;
  if (IsIn(site)) site.OnInPlaceDeactivate();
  return result;
}

bool InPlaceWindow::IsIn(IOleInPlaceSite& site) const { return Site().Get() == &site; }

HRESULT InPlaceWindow::OpenWithin(IOleInPlaceSite& site) {
  HWND parent = nullptr;
  if (!IsIn(site)) return E_FAIL;
  if (FAILED(site.GetWindow(&parent)) || IsWindow(parent) == FALSE) return E_FAIL;
  RECT place{}, clip{};
  OLEINPLACEFRAMEINFO info{};
  info.cb = sizeof info;
  if (const HRESULT result = site.GetWindowContext(frame_.Out(), document_.Out(), &place, &clip, &info);
      FAILED(result)) {
    return result;
  }
  if (window_ != nullptr || !IsIn(site) || !Register(Procedure)) return E_FAIL;
  const SIZE size = SizeOf(place);
  CreateWindowExW(0, ClassName, class_facts::Name, WS_CHILD | WS_CLIPSIBLINGS, place.left, place.top, size.cx, size.cy,
                  parent, nullptr, module::Instance(), this);
  return window_ == nullptr ? E_FAIL : S_OK;
}

HRESULT InPlaceWindow::ActivateInterface(IOleInPlaceSite& site) {
  if (!hasKeys_) {
    if (const HRESULT result = site.OnUIActivate(); FAILED(result)) return result;
    if (!IsIn(site)) return E_FAIL;
    hasKeys_ = true;
    const auto active = As<IOleInPlaceActiveObject>(&control_.Outer());
    if (const auto frame = frame_) frame->SetActiveObject(active.Get(), class_facts::Name);
    if (const auto document = document_) document->SetActiveObject(active.Get(), class_facts::Name);
  }
  if (window_ != nullptr) SetFocus(window_);
  return S_OK;
}

void InPlaceWindow::DeactivateInterface() {
  if (!hasKeys_) return;
  hasKeys_ = false;
  if (const auto frame = frame_) frame->SetActiveObject(nullptr, nullptr);
  if (const auto document = document_) document->SetActiveObject(nullptr, nullptr);
  if (const auto site = Site()) site->OnUIDeactivate(FALSE);
}

void InPlaceWindow::Deactivate() {
  if (!std::exchange(active_, false)) return;
  DeactivateInterface();
  if (window_ != nullptr) DestroyWindow(window_);  // it may have gone with the container's
  frame_ = nullptr;
  document_ = nullptr;
  if (const auto site = Site()) site->OnInPlaceDeactivate();
}

void InPlaceWindow::Hide() {
  DeactivateInterface();
  if (window_ != nullptr) ShowWindow(window_, SW_HIDE);
}

void InPlaceWindow::Close() noexcept {
  (void)Guarded("Close", [&] {
    Deactivate();
    return S_OK;
  });
}

void InPlaceWindow::Move(const RECT& place, const RECT& clip) {
  if (window_ == nullptr) return;
  const SIZE size = SizeOf(place);
  RECT seen{};
  const bool whole = IsRectEmpty(&clip) != FALSE ||
                     (IntersectRect(&seen, &place, &clip) != FALSE && EqualRect(&seen, &place) != FALSE);
  OffsetRect(&seen, -place.left, -place.top);
  SetWindowRgn(window_, whole ? nullptr : CreateRectRgnIndirect(&seen), TRUE);
  if (window_ == nullptr) return;
  SetWindowPos(window_, nullptr, place.left, place.top, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

void InPlaceWindow::Resize(SIZEL extent) {
  const auto site = Site();
  if (window_ == nullptr || !site) return;
  RECT place{};
  GetWindowRect(window_, &place);
  MapWindowPoints(HWND_DESKTOP, GetParent(window_), reinterpret_cast<POINT*>(&place), 2);
  const SIZE wanted = PixelsOfHimetric(extent), now = SizeOf(place);
  if (wanted.cx == now.cx && wanted.cy == now.cy) return;
  place.right = place.left + wanted.cx;
  place.bottom = place.top + wanted.cy;
  site->OnPosRectChange(&place);
}

void InPlaceWindow::Redraw() {
  if (window_ != nullptr) InvalidateRect(window_, nullptr, FALSE);
}

}  // namespace plexel::activex

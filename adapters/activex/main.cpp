#include <PlexelBaseElement.h>
#include <ole2.h>
#include <olectl.h>
#include <windows.h>

#include <string_view>

#include "activex/class_factory.h"
#include "activex/guard.h"
#include "activex/in_place_window.h"
#include "activex/module.h"
#include "activex/registration.h"

// What the library shows to the system.

extern "C" {

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) {
    plexel::activex::module::Loaded(instance);
    DisableThreadLibraryCalls(instance);
  }
  if (reason == DLL_PROCESS_DETACH) plexel::activex::InPlaceWindow::Unregister();
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID id, REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (id != __uuidof(::ctlPlexelBaseElement)) return CLASS_E_CLASSNOTAVAILABLE;
  return plexel::activex::Guarded("DllGetClassObject", [&] {
    const plexel::activex::ComPointer<plexel::activex::ClassFactory> factory(new plexel::activex::ClassFactory);
    return factory->QueryInterface(iid, object);
  });
}

STDAPI DllCanUnloadNow() { return plexel::activex::module::IsUsed() ? S_FALSE : S_OK; }

STDAPI DllRegisterServer() {
  using plexel::activex::RegisteredFor;
  return plexel::activex::Register(plexel::activex::MayRegisterForMachine() ? RegisteredFor::Machine
                                                                            : RegisteredFor::User);
}

STDAPI DllUnregisterServer() {
  using plexel::activex::RegisteredFor;
  const HRESULT result = plexel::activex::Unregister(RegisteredFor::User);
  return plexel::activex::MayRegisterForMachine() ? plexel::activex::Unregister(RegisteredFor::Machine) : result;
}

/// "user": for the user alone, whatever rights the process has.
STDAPI DllInstall(BOOL install, PCWSTR words) {
  using plexel::activex::RegisteredFor;
  if (words == nullptr || *words == L'\0') return install != FALSE ? DllRegisterServer() : DllUnregisterServer();
  if (std::wstring_view(words) != L"user") return E_INVALIDARG;
  return install != FALSE ? plexel::activex::Register(RegisteredFor::User)
                          : plexel::activex::Unregister(RegisteredFor::User);
}

}  // extern "C"

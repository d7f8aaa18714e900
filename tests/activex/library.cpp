#include "activex/library.h"

#include <cwchar>
#include <stdexcept>

namespace plexel::activex {

Library& Library::Instance() {
  static Library library;
  return library;
}

Library::Library() {
  GetModuleFileNameW(nullptr, file_, MAX_PATH);
  wchar_t* const name = std::wcsrchr(file_, L'\\') + 1;
  std::wcscpy(name, L"PlexelBaseElement.ocx");
  module_ = LoadLibraryW(file_);
  if (module_ == nullptr) throw std::runtime_error("the control's library cannot be loaded");
}

template <typename Function>
Function* Library::Export(const char* name) {
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
}

ComPointer<IClassFactory> Library::Factory() {
  ComPointer<IClassFactory> factory;
  const auto get = Export<HRESULT STDAPICALLTYPE(REFCLSID, REFIID, void**)>("DllGetClassObject");
  if (FAILED(get(__uuidof(::ctlPlexelBaseElement), __uuidof(IClassFactory), factory.OutVoid()))) {
    throw std::runtime_error("there is no class factory");
  }
  return factory;
}

ComPointer<_ctlPlexelBaseElement> Library::Create() {
  ComPointer<_ctlPlexelBaseElement> control;
  if (FAILED(Factory()->CreateInstance(nullptr, __uuidof(_ctlPlexelBaseElement), control.OutVoid()))) {
    throw std::runtime_error("no control can be made");
  }
  return control;
}

HRESULT Library::CanUnload() { return Export<HRESULT STDAPICALLTYPE()>("DllCanUnloadNow")(); }

}  // namespace plexel::activex

#pragma once

#include <PlexelBaseElement.h>
#include <ole2.h>
#include <windows.h>

#include "activex/com_pointer.h"

namespace plexel::activex {

/// The control's library, loaded from beside the test, as the system would load it.
class Library {
 public:
  static Library& Instance();

  ComPointer<IClassFactory> Factory();
  /// A new control by its own interface.
  ComPointer<_ctlPlexelBaseElement> Create();
  /// What DllCanUnloadNow answers.
  HRESULT CanUnload();
  const wchar_t* File() const { return file_; }

 private:
  Library();
  template <typename Function>
  Function* Export(const char* name);

  wchar_t file_[MAX_PATH] = {};
  HMODULE module_ = nullptr;
};

}  // namespace plexel::activex

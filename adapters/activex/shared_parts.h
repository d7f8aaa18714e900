#pragma once

#include <ole2.h>
#include <windows.h>

#include <memory>

#include "activex/com_pointer.h"
#include "activex/control_surroundings.h"
#include "activex/record_info.h"
#include "win32/win32_component.h"

namespace plexel::activex {

/// What all controls of the process share. It lives while one of them does, on the thread that made the first.
class SharedParts {
 public:
  /// ResultError (RPC_E_WRONG_THREAD) on another thread.
  static std::shared_ptr<SharedParts> Get();

  ControlSurroundings& Services() { return services_; }
  Win32Component& TheComponent() { return component_; }

  /// A type of the type library. ResultError when it cannot be had.
  ComPointer<ITypeInfo> Type(REFGUID id);
  /// What describes udtTactisBaseElement_ScanCodeInfo.
  ComPointer<RecordInfo> ScanCodeInfo();

 private:
  ITypeLib& Library();

  DWORD thread_ = GetCurrentThreadId();
  ControlSurroundings services_;
  Win32Component component_{services_};
  ComPointer<ITypeLib> library_;
  ComPointer<RecordInfo> scanCodeInfo_;
};

}  // namespace plexel::activex

#pragma once

#include <ole2.h>
#include <windows.h>

#include <memory>
#include <string>

#include "activex/com_pointer.h"
#include "win32/native_window.h"

namespace plexel::activex {

/// The host's form behind ParentWindow: an object that has a window, by IOleWindow or by its property hWnd, which is
/// asked anew at each use.
class HostForm : public HostObject, public NativeWindow {
 public:
  explicit HostForm(IDispatch* form) : form_(form) {}

  Window* AsForm() override;
  std::string WindowName() const override { return "HostForm"; }
  HWND Handle() const override;

  /// The host's object.
  const ComPointer<IDispatch>& Object() const { return form_; }

 private:
  ComPointer<IDispatch> form_;
};

}  // namespace plexel::activex

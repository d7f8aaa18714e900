#pragma once

#include <ole2.h>
#include <windows.h>

#include "activex/control.h"

namespace plexel::activex {

/// An interface of the control, a part of it: whoever holds the interface holds the control.
template <typename Interface>
class Face : public Interface {
 public:
  explicit Face(Control& control) : control_(control) {}
  Face(const Face&) = delete;
  Face& operator=(const Face&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) final {
    return control_.Outer().QueryInterface(iid, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() final { return control_.Outer().AddRef(); }
  ULONG STDMETHODCALLTYPE Release() final { return control_.Outer().Release(); }

 protected:
  ~Face() = default;
  Control& TheControl() const { return control_; }

 private:
  Control& control_;
};

}  // namespace plexel::activex

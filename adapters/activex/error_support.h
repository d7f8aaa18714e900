#pragma once

#include <PlexelBaseElement.h>
#include <ole2.h>
#include <windows.h>

#include "activex/face.h"

namespace plexel::activex {

/// Tells that the element's interface explains its errors.
class ErrorSupport final : public Face<ISupportErrorInfo> {
 public:
  using Face::Face;
  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override {
    return iid == __uuidof(_ctlPlexelBaseElement) ? S_OK : S_FALSE;
  }
};

}  // namespace plexel::activex

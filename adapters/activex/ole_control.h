#pragma once

#include <ocidl.h>
#include <ole2.h>
#include <windows.h>

#include "activex/face.h"

namespace plexel::activex {

/// What a control is besides an object: its keys, and a pause of its events.
class OleControl final : public Face<IOleControl> {
 public:
  using Face::Face;
  HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* info) override;
  HRESULT STDMETHODCALLTYPE OnMnemonic(MSG* message) override;
  HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID property) override;
  HRESULT STDMETHODCALLTYPE FreezeEvents(WINBOOL freeze) override;
};

}  // namespace plexel::activex

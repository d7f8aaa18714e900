#pragma once

#include <ole2.h>
#include <windows.h>

#include "activex/face.h"

namespace plexel::activex {

/// The control as a window in its container.
class InPlaceObject final : public Face<IOleInPlaceObject> {
 public:
  using Face::Face;
  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(WINBOOL enter) override;
  HRESULT STDMETHODCALLTYPE InPlaceDeactivate() override;
  HRESULT STDMETHODCALLTYPE UIDeactivate() override;
  HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT place, LPCRECT clip) override;
  HRESULT STDMETHODCALLTYPE ReactivateAndUndo() override;
};

}  // namespace plexel::activex

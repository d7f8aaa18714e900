#pragma once

#include <ole2.h>
#include <windows.h>

#include "activex/face.h"

namespace plexel::activex {

/// The control while it has the container's keys.
class InPlaceActiveObject final : public Face<IOleInPlaceActiveObject> {
 public:
  using Face::Face;
  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(WINBOOL enter) override;
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message) override;
  HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(WINBOOL activate) override;
  HRESULT STDMETHODCALLTYPE OnDocWindowActivate(WINBOOL activate) override;
  HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window, WINBOOL frame) override;
  HRESULT STDMETHODCALLTYPE EnableModeless(WINBOOL enable) override;
};

}  // namespace plexel::activex

#pragma once

#include <ole2.h>
#include <windows.h>

#include "activex/face.h"

namespace plexel::activex {

/// The control as a picture: on any device, in any place, at any size.
class ViewObject final : public Face<IViewObject2> {
 public:
  using Face::Face;
  HRESULT STDMETHODCALLTYPE Draw(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* device, HDC target,
                                 HDC canvas, LPCRECTL bounds, LPCRECTL window,
                                 WINBOOL(STDMETHODCALLTYPE* goOn)(ULONG_PTR), ULONG_PTR goOnArgument) override;
  HRESULT STDMETHODCALLTYPE GetColorSet(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* device, HDC target,
                                        LOGPALETTE** colours) override;
  HRESULT STDMETHODCALLTYPE Freeze(DWORD aspect, LONG index, void* aspectInfo, DWORD* key) override;
  HRESULT STDMETHODCALLTYPE Unfreeze(DWORD key) override;
  HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
  HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* device, LPSIZEL extent) override;
};

}  // namespace plexel::activex

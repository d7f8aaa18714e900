#include "activex/view_object.h"

#include "activex/surface_painter.h"
#include "activex/units.h"

namespace plexel::activex {

/// A null place is that of a metafile, which has its own.
HRESULT ViewObject::Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC canvas, LPCRECTL bounds, LPCRECTL,
                         WINBOOL(STDMETHODCALLTYPE*)(ULONG_PTR), ULONG_PTR) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (canvas == nullptr || bounds == nullptr) return E_POINTER;
  return TheControl().Run("Draw", [&] {
    const SIZEL extent = TheControl().Extent();
    if (extent.cx <= 0 || extent.cy <= 0) return;
    const double across = HimetricOfInch / TwipsOfInch / extent.cx, down = HimetricOfInch / TwipsOfInch / extent.cy;
    const SIZE pixels = PixelsOfHimetric(extent);
    const Canvas place{canvas,
                       {static_cast<double>(bounds->left), static_cast<double>(bounds->top)},
                       across * (bounds->right - bounds->left),
                       down * (bounds->bottom - bounds->top),
                       pixels.cx <= 0 ? 1.0 : static_cast<double>(bounds->right - bounds->left) / pixels.cx};
    DrawSurface(place, TheControl().TheElement().SurfaceObjects());
  });
}

HRESULT ViewObject::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** colours) {
  if (colours == nullptr) return E_POINTER;
  *colours = nullptr;
  return S_FALSE;
}

HRESULT ViewObject::Freeze(DWORD, LONG, void*, DWORD* key) {
  if (key != nullptr) *key = 0;
  return E_NOTIMPL;
}

HRESULT ViewObject::Unfreeze(DWORD) { return E_NOTIMPL; }

HRESULT ViewObject::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
  return TheControl().Run("SetAdvise", [&] {
    TheControl().viewAspects = aspects;
    TheControl().viewFlags = flags & ~DWORD{ADVF_PRIMEFIRST};
    if ((flags & ADVF_PRIMEFIRST) != 0 && sink != nullptr) {
      sink->OnViewChange(DVASPECT_CONTENT, -1);
      if ((flags & ADVF_ONLYONCE) != 0) sink = nullptr;
    }
    TheControl().viewSink = ComPointer<IAdviseSink>(sink);
    TheControl().LookWhoSees();
  });
}

HRESULT ViewObject::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
  if (aspects != nullptr) *aspects = TheControl().viewAspects;
  if (flags != nullptr) *flags = TheControl().viewFlags;
  if (sink != nullptr) *sink = TheControl().viewSink.Shared();
  return S_OK;
}

HRESULT ViewObject::GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, LPSIZEL extent) {
  if (extent == nullptr) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  return TheControl().Run("GetExtent", [&] { *extent = TheControl().Extent(); });
}

}  // namespace plexel::activex

#include "activex/ole_object.h"

#include <PlexelBaseElement.h>
#include <olectl.h>

#include "activex/class_facts.h"
#include "activex/in_place_window.h"

namespace plexel::activex {

HRESULT OleObject::SetClientSite(IOleClientSite* site) {
  return TheControl().Run("SetClientSite", [&] { TheControl().Site(site); });
}

HRESULT OleObject::GetClientSite(IOleClientSite** site) {
  if (site == nullptr) return E_POINTER;
  *site = ComPointer<IOleClientSite>(TheControl().Site()).HandOn();
  return S_OK;
}

HRESULT OleObject::SetHostNames(LPCOLESTR application, LPCOLESTR) { return application == nullptr ? E_POINTER : S_OK; }

HRESULT OleObject::Close(DWORD save) {
  return TheControl().Run("Close", [&] {
    TheControl().CloseDialogs();
    TheControl().Place().Close();
    const ComPointer<IOleClientSite> site(TheControl().Site());
    if (save != OLECLOSE_NOSAVE && TheControl().Changed() && site) site->SaveObject();
    if (const auto sinks = TheControl().objectSinks) sinks->SendOnClose();
  });
}

HRESULT OleObject::SetMoniker(DWORD, IMoniker*) { return E_NOTIMPL; }

HRESULT OleObject::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
  if (moniker == nullptr) return E_POINTER;
  *moniker = nullptr;
  return E_NOTIMPL;
}

HRESULT OleObject::InitFromData(IDataObject*, WINBOOL, DWORD) { return E_NOTIMPL; }

HRESULT OleObject::GetClipboardData(DWORD, IDataObject** data) {
  if (data == nullptr) return E_POINTER;
  *data = nullptr;
  return E_NOTIMPL;
}

HRESULT OleObject::DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) {
  return TheControl().Run("DoVerb", [&] {
    switch (verb) {
      case OLEIVERB_PRIMARY:
      case OLEIVERB_SHOW:
      case OLEIVERB_INPLACEACTIVATE:
        return TheControl().Place().Activate(false);
      case OLEIVERB_UIACTIVATE:
        return TheControl().Place().Activate(true);
      case OLEIVERB_HIDE:
        TheControl().Place().Hide();
        return S_OK;
      case OLEIVERB_PROPERTIES:
        TheControl().RunDialog([&] { TheControl().TheElement().OpenPropertiesDialog(); });
        return S_OK;
      case OLEIVERB_OPEN:
      case OLEIVERB_DISCARDUNDOSTATE:
        return E_NOTIMPL;
      default:
        if (verb < 0) return E_NOTIMPL;
        (void)TheControl().Place().Activate(false);
        return OLEOBJ_S_INVALIDVERB;
    }
  });
}

HRESULT OleObject::EnumVerbs(IEnumOLEVERB** verbs) {
  if (verbs == nullptr) return E_POINTER;
  *verbs = nullptr;
  return OLE_S_USEREG;
}

HRESULT OleObject::Update() { return S_OK; }

HRESULT OleObject::IsUpToDate() { return S_OK; }

HRESULT OleObject::GetUserClassID(CLSID* id) {
  if (id == nullptr) return E_POINTER;
  *id = __uuidof(::ctlPlexelBaseElement);
  return S_OK;
}

HRESULT OleObject::GetUserType(DWORD, LPOLESTR* name) {
  if (name == nullptr) return E_POINTER;
  *name = static_cast<LPOLESTR>(CoTaskMemAlloc(sizeof class_facts::Name));
  if (*name == nullptr) return E_OUTOFMEMORY;
  std::copy(std::begin(class_facts::Name), std::end(class_facts::Name), *name);
  return S_OK;
}

HRESULT OleObject::SetExtent(DWORD aspect, SIZEL* extent) {
  if (extent == nullptr) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (extent->cx < 0 || extent->cy < 0) return E_INVALIDARG;
  return TheControl().Run("SetExtent", [&] {
    (void)TheControl().Extent();  // what the element wants first
    TheControl().Extent(*extent);
  });
}

HRESULT OleObject::GetExtent(DWORD aspect, SIZEL* extent) {
  if (extent == nullptr) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  return TheControl().Run("GetExtent", [&] { *extent = TheControl().Extent(); });
}

HRESULT OleObject::Advise(IAdviseSink* sink, DWORD* connection) {
  if (sink == nullptr || connection == nullptr) return E_POINTER;
  *connection = 0;
  return TheControl().Run("Advise", [&] {
    if (!TheControl().objectSinks) Check(CreateOleAdviseHolder(TheControl().objectSinks.Out()));
    return TheControl().objectSinks->Advise(sink, connection);
  });
}

HRESULT OleObject::Unadvise(DWORD connection) {
  return TheControl().Run("Unadvise", [&] {
    const auto sinks = TheControl().objectSinks;
    return sinks ? sinks->Unadvise(connection) : OLE_E_NOCONNECTION;
  });
}

HRESULT OleObject::EnumAdvise(IEnumSTATDATA** sinks) {
  if (sinks == nullptr) return E_POINTER;
  *sinks = nullptr;
  const auto held = TheControl().objectSinks;
  return held ? held->EnumAdvise(sinks) : S_OK;
}

HRESULT OleObject::GetMiscStatus(DWORD aspect, DWORD* status) {
  if (status == nullptr) return E_POINTER;
  *status = aspect == DVASPECT_CONTENT ? class_facts::MiscStatus : 0;
  return S_OK;
}

HRESULT OleObject::SetColorScheme(LOGPALETTE*) { return E_NOTIMPL; }

}  // namespace plexel::activex

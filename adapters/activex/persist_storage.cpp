#include "activex/persist_storage.h"

#include <PlexelBaseElement.h>

#include "activex/persist_stream.h"

namespace plexel::activex {

namespace {

constexpr const wchar_t* StreamName = L"Element";

}  // namespace

HRESULT PersistStorage::GetClassID(CLSID* id) {
  if (id == nullptr) return E_POINTER;
  *id = __uuidof(::ctlPlexelBaseElement);
  return S_OK;
}

HRESULT PersistStorage::IsDirty() { return TheControl().Changed() ? S_OK : S_FALSE; }

HRESULT PersistStorage::InitNew(IStorage* storage) {
  if (storage == nullptr) return E_POINTER;
  return TheControl().Run("InitNew", [&] { TheControl().Renew(); });
}

HRESULT PersistStorage::Load(IStorage* storage) {
  if (storage == nullptr) return E_POINTER;
  return TheControl().Run("Load", [&] {
    ComPointer<IStream> stream;
    const HRESULT result = storage->OpenStream(StreamName, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, stream.Out());
    if (FAILED(result) || !stream) {
      TheControl().Renew();
      return FAILED(result) ? result : E_UNEXPECTED;
    }
    return LoadElement(TheControl(), *stream.Get());
  });
}

HRESULT PersistStorage::Save(IStorage* storage, WINBOOL) {
  if (storage == nullptr) return E_POINTER;
  return TheControl().Run("Save", [&] {
    WriteClassStg(storage, __uuidof(::ctlPlexelBaseElement));
    ComPointer<IStream> stream;
    Check(storage->CreateStream(StreamName, STGM_CREATE | STGM_WRITE | STGM_SHARE_EXCLUSIVE, 0, 0, stream.Out()));
    if (!stream) return E_UNEXPECTED;
    return SaveElement(TheControl(), *stream.Get());
  });
}

HRESULT PersistStorage::SaveCompleted(IStorage*) {
  TheControl().Changed(false);
  return S_OK;
}

HRESULT PersistStorage::HandsOffStorage() { return S_OK; }

}  // namespace plexel::activex

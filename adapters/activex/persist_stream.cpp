#include "activex/persist_stream.h"

#include <PlexelBaseElement.h>

#include <algorithm>
#include <optional>
#include <span>
#include <vector>

#include "files/element_stream.h"

namespace plexel::activex {

namespace {

/// Whether so many bytes came; they are fetched in pieces, so that a size that is not true asks for no more memory than
/// came.
bool Fetch(IStream& stream, std::size_t size, std::vector<std::uint8_t>& bytes) {
  constexpr std::size_t Piece = 65536;
  while (size > 0) {
    const std::size_t wanted = std::min(size, Piece), before = bytes.size();
    bytes.resize(before + wanted);
    ULONG came = 0;
    const HRESULT result = stream.Read(bytes.data() + before, static_cast<ULONG>(wanted), &came);
    if (FAILED(result) || came == 0 || came > wanted) return false;
    bytes.resize(before + came);
    size -= came;
  }
  return true;
}

std::optional<FlatBag> FetchBag(IStream& stream) {
  std::vector<std::uint8_t> bytes;
  if (!Fetch(stream, StreamHeadSize, bytes)) return std::nullopt;
  const std::optional<std::size_t> behind = BytesBehind(bytes);
  if (!behind || !Fetch(stream, *behind, bytes)) return std::nullopt;
  return BagOf(bytes);
}

}  // namespace

HRESULT LoadElement(Control& control, IStream& stream) {
  const std::optional<FlatBag> bag = FetchBag(stream);
  if (!bag) {
    control.Renew();
    return Tell({STG_E_DOCFILECORRUPT, "Load: the stream is damaged, or of another version"});
  }
  control.Read(*bag);
  ReadRest(control.TheElement(), *bag);
  control.Changed(false);
  return S_OK;
}

HRESULT SaveElement(Control& control, IStream& stream) {
  const std::vector<std::uint8_t> bytes = StreamOf(control.TheElement());
  std::span<const std::uint8_t> left(bytes);
  while (!left.empty()) {
    ULONG went = 0;
    const HRESULT result = stream.Write(left.data(), static_cast<ULONG>(left.size()), &went);
    if (FAILED(result)) return result;
    if (went == 0 || went > left.size()) return STG_E_WRITEFAULT;
    left = left.subspan(went);
  }
  return S_OK;
}

HRESULT PersistStream::GetClassID(CLSID* id) {
  if (id == nullptr) return E_POINTER;
  *id = __uuidof(::ctlPlexelBaseElement);
  return S_OK;
}

HRESULT PersistStream::IsDirty() { return TheControl().Changed() ? S_OK : S_FALSE; }

HRESULT PersistStream::Load(IStream* stream) {
  if (stream == nullptr) return E_POINTER;
  return TheControl().Run("Load", [&] { return LoadElement(TheControl(), *stream); });
}

HRESULT PersistStream::Save(IStream* stream, WINBOOL clearDirty) {
  if (stream == nullptr) return E_POINTER;
  return TheControl().Run("Save", [&] {
    const HRESULT result = SaveElement(TheControl(), *stream);
    if (SUCCEEDED(result) && clearDirty != FALSE) TheControl().Changed(false);
    return result;
  });
}

HRESULT PersistStream::GetSizeMax(ULARGE_INTEGER* size) {
  if (size == nullptr) return E_POINTER;
  return TheControl().Run("GetSizeMax", [&] { size->QuadPart = StreamOf(TheControl().TheElement()).size(); });
}

HRESULT PersistStream::InitNew() {
  return TheControl().Run("InitNew", [&] { TheControl().Renew(); });
}

}  // namespace plexel::activex

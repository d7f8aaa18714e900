#include "activex/record_info.h"

#include <cstring>

#include "activex/guard.h"
#include "activex/record_fields.h"
#include "win32/bstr.h"

namespace plexel::activex {

namespace {

BSTR& TextAt(void* record, std::size_t offset) {
  return *reinterpret_cast<BSTR*>(static_cast<std::byte*>(record) + offset);
}

}  // namespace

ComPointer<RecordInfo> RecordInfo::Of(ITypeLib& library, const wchar_t* name) {
  Bstr searched{std::wstring_view(name)};
  ComPointer<ITypeInfo> type;
  MEMBERID member = 0;
  USHORT found = 1;
  Check(library.FindName(searched.Get(), 0, type.Out(), &member, &found));
  if (found == 0 || !type) throw ResultError(TYPE_E_ELEMENTNOTFOUND);
  return ComPointer<RecordInfo>(new RecordInfo(*type.Get()));
}

HRESULT RecordInfo::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  const bool known = iid == __uuidof(IUnknown) || iid == __uuidof(IRecordInfo);
  *object = known ? this : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG RecordInfo::AddRef() { return static_cast<ULONG>(InterlockedIncrement(&holds_)); }

ULONG RecordInfo::Release() {
  const LONG holds = InterlockedDecrement(&holds_);
  if (holds == 0) delete this;
  return static_cast<ULONG>(holds);
}

HRESULT RecordInfo::RecordInit(PVOID made) {
  if (made == nullptr) return E_POINTER;
  std::memset(made, 0, layout_.size);
  return S_OK;
}

HRESULT RecordInfo::RecordClear(PVOID existing) {
  if (existing == nullptr) return E_POINTER;
  for (const std::size_t text : layout_.texts) SysFreeString(TextAt(existing, text));
  std::memset(existing, 0, layout_.size);
  return S_OK;
}

HRESULT RecordInfo::RecordCopy(PVOID existing, PVOID made) {
  if (existing == nullptr || made == nullptr) return E_POINTER;
  std::memcpy(made, existing, layout_.size);
  for (const std::size_t text : layout_.texts) TextAt(made, text) = nullptr;
  for (const std::size_t text : layout_.texts) {
    const BSTR from = TextAt(existing, text);
    if (from == nullptr) continue;
    TextAt(made, text) = SysAllocStringByteLen(reinterpret_cast<const char*>(from), SysStringByteLen(from));
    if (TextAt(made, text) == nullptr) {
      RecordClear(made);
      return E_OUTOFMEMORY;
    }
  }
  return S_OK;
}

HRESULT RecordInfo::GetGuid(GUID* id) {
  if (id == nullptr) return E_POINTER;
  *id = layout_.id;
  return S_OK;
}

HRESULT RecordInfo::GetName(BSTR* name) {
  if (name == nullptr) return E_POINTER;
  return Guarded(__func__, [&] {
    *name = NewBstr(std::wstring_view(layout_.name));
    return S_OK;
  });
}

HRESULT RecordInfo::GetSize(ULONG* size) {
  if (size == nullptr) return E_POINTER;
  *size = static_cast<ULONG>(layout_.size);
  return S_OK;
}

HRESULT RecordInfo::GetTypeInfo(ITypeInfo** type) {
  if (type == nullptr) return E_POINTER;
  *type = type_.Shared();
  return S_OK;
}

HRESULT RecordInfo::GetField(PVOID data, LPCOLESTR name, VARIANT* value) {
  if (data == nullptr || name == nullptr || value == nullptr) return E_POINTER;
  const RecordLayout::Field* field = layout_.Find(name);
  if (field == nullptr) return TYPE_E_FIELDNOTFOUND;
  return Guarded(__func__, [&] {
    ReadField(data, *field, *value);
    return S_OK;
  });
}

HRESULT RecordInfo::GetFieldNoCopy(PVOID data, LPCOLESTR name, VARIANT* value, PVOID* array) {
  if (data == nullptr || name == nullptr || value == nullptr) return E_POINTER;
  const RecordLayout::Field* field = layout_.Find(name);
  if (field == nullptr) return TYPE_E_FIELDNOTFOUND;
  return Guarded(__func__, [&] {
    ReferToField(data, *field, *value, array);
    return S_OK;
  });
}

HRESULT RecordInfo::PutField(ULONG, PVOID data, LPCOLESTR name, VARIANT* value) {
  if (data == nullptr || name == nullptr || value == nullptr) return E_POINTER;
  const RecordLayout::Field* field = layout_.Find(name);
  if (field == nullptr) return TYPE_E_FIELDNOTFOUND;
  return Guarded(__func__, [&] {
    WriteField(data, *field, *value);
    return S_OK;
  });
}

HRESULT RecordInfo::PutFieldNoCopy(ULONG flags, PVOID data, LPCOLESTR name, VARIANT* value) {
  const HRESULT result = PutField(flags, data, name, value);
  if (SUCCEEDED(result)) VariantClear(value);  // the caller has handed it over
  return result;
}

HRESULT RecordInfo::GetFieldNames(ULONG* count, BSTR* names) {
  if (count == nullptr) return E_POINTER;
  const auto all = static_cast<ULONG>(layout_.fields.size());
  if (names == nullptr) {
    *count = all;
    return S_OK;
  }
  const ULONG wanted = std::min(*count, all);
  for (ULONG index = 0; index < wanted; ++index) {
    names[index] = SysAllocString(layout_.fields[index].name.c_str());
    if (names[index] != nullptr) continue;
    for (ULONG made = 0; made < index; ++made) SysFreeString(names[made]);
    return E_OUTOFMEMORY;
  }
  *count = wanted;
  return S_OK;
}

WINBOOL RecordInfo::IsMatchingType(IRecordInfo* other) {
  GUID id{};
  return other != nullptr && (other == this || (SUCCEEDED(other->GetGuid(&id)) && id == layout_.id)) ? TRUE : FALSE;
}

PVOID RecordInfo::RecordCreate() { return HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, layout_.size); }

HRESULT RecordInfo::RecordCreateCopy(PVOID source, PVOID* made) {
  if (source == nullptr || made == nullptr) return E_POINTER;
  *made = RecordCreate();
  if (*made == nullptr) return E_OUTOFMEMORY;
  const HRESULT result = RecordCopy(source, *made);
  if (FAILED(result)) HeapFree(GetProcessHeap(), 0, std::exchange(*made, nullptr));
  return result;
}

HRESULT RecordInfo::RecordDestroy(PVOID record) {
  const HRESULT result = RecordClear(record);
  if (SUCCEEDED(result) && !HeapFree(GetProcessHeap(), 0, record)) return E_INVALIDARG;
  return result;
}

}  // namespace plexel::activex

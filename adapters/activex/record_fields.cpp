#include "activex/record_fields.h"

#include <cstring>

#include "activex/com_pointer.h"
#include "activex/conversion.h"
#include "activex/guard.h"
#include "activex/record_info.h"
#include "win32/variant.h"

namespace plexel::activex {

namespace {

using Field = RecordLayout::Field;
using Kind = RecordLayout::Kind;

std::byte* PlaceOf(void* record, const Field& field) { return static_cast<std::byte*>(record) + field.offset; }

const std::byte* PlaceOf(const void* record, const Field& field) {
  return static_cast<const std::byte*>(record) + field.offset;
}

ComPointer<IRecordInfo> InfoOf(const Field& field) {
  ComPointer<IRecordInfo> info;
  ComPointer<ITypeLib> library;
  UINT index = 0;
  Check(field.record->GetContainingTypeLib(library.Out(), &index));
  return ComPointer<IRecordInfo>(
      RecordInfo::Of(*library.Get(), RecordLayout::Of(*field.record.Get()).name.c_str()).Get());
}

/// The bytes of a safe array while it is looked at.
class Looking {
 public:
  explicit Looking(SAFEARRAY* array) : array_(array) { Check(SafeArrayAccessData(array_, &bytes_)); }
  ~Looking() { SafeArrayUnaccessData(array_); }
  Looking(const Looking&) = delete;
  Looking& operator=(const Looking&) = delete;
  void* Bytes() const { return bytes_; }

 private:
  SAFEARRAY* array_;
  void* bytes_ = nullptr;
};

void ReadBytes(const std::byte* place, const Field& field, VARIANT& value) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(field.size));
  if (array == nullptr) throw ResultError(E_OUTOFMEMORY);
  V_VT(&value) = VT_ARRAY | VT_UI1;
  V_ARRAY(&value) = array;
  std::memcpy(Looking(array).Bytes(), place, field.size);
}

void WriteBytes(std::byte* place, const Field& field, const VARIANT& value) {
  if ((V_VT(&value) & ~VT_BYREF) != (VT_ARRAY | VT_UI1)) throw ResultError(DISP_E_TYPEMISMATCH);
  SAFEARRAY* array = (V_VT(&value) & VT_BYREF) != 0 ? *V_ARRAYREF(&value) : V_ARRAY(&value);
  if (array == nullptr || SafeArrayGetDim(array) != 1) throw ResultError(DISP_E_TYPEMISMATCH);
  if (array->rgsabound[0].cElements != field.size) throw ResultError(DISP_E_BADINDEX);
  std::memcpy(place, Looking(array).Bytes(), field.size);
}

void WriteRecord(std::byte* place, const Field& field, const VARIANT& value) {
  const ComPointer<IRecordInfo> info = InfoOf(field);
  if ((V_VT(&value) & ~VT_BYREF) != VT_RECORD || V_RECORDINFO(&value) == nullptr || V_RECORD(&value) == nullptr ||
      !info->IsMatchingType(V_RECORDINFO(&value))) {
    throw ResultError(DISP_E_TYPEMISMATCH);
  }
  void* copy = nullptr;
  Check(info->RecordCreateCopy(V_RECORD(&value), &copy));
  info->RecordClear(place);
  std::memcpy(place, copy, field.size);
  std::memset(copy, 0, field.size);
  info->RecordDestroy(copy);
}

}  // namespace

void ReadField(const void* record, const Field& field, VARIANT& value) {
  const std::byte* place = PlaceOf(record, field);
  VariantInit(&value);
  switch (field.kind) {
    case Kind::Number:
      std::memcpy(&V_UI1(&value), place, field.size);
      V_VT(&value) = field.type;
      break;
    case Kind::Text: {
      BSTR text = nullptr;
      std::memcpy(&text, place, sizeof text);
      V_BSTR(&value) = SysAllocStringByteLen(reinterpret_cast<const char*>(text), SysStringByteLen(text));
      if (V_BSTR(&value) == nullptr) throw ResultError(E_OUTOFMEMORY);
      V_VT(&value) = VT_BSTR;
      break;
    }
    case Kind::Bytes:
      ReadBytes(place, field, value);
      break;
    case Kind::Record: {
      ComPointer<IRecordInfo> info = InfoOf(field);
      Check(info->RecordCreateCopy(const_cast<std::byte*>(place), &V_RECORD(&value)));
      V_RECORDINFO(&value) = info.HandOn();
      V_VT(&value) = VT_RECORD;
      break;
    }
  }
}

void ReferToField(void* record, const Field& field, VARIANT& value, void** array) {
  std::byte* place = PlaceOf(record, field);
  VariantInit(&value);
  if (array != nullptr) *array = nullptr;
  switch (field.kind) {
    case Kind::Number:
      V_BYREF(&value) = place;
      V_VT(&value) = static_cast<VARTYPE>(VT_BYREF | field.type);
      break;
    case Kind::Text:
      V_BYREF(&value) = place;
      V_VT(&value) = VT_BYREF | VT_BSTR;
      break;
    case Kind::Bytes:
      if (array == nullptr) throw ResultError(E_POINTER);
      *array = place;
      V_VT(&value) = VT_BYREF | VT_CARRAY;
      break;
    case Kind::Record:
      V_RECORD(&value) = place;
      V_RECORDINFO(&value) = InfoOf(field).HandOn();
      V_VT(&value) = VT_BYREF | VT_RECORD;
      break;
  }
}

void WriteField(void* record, const Field& field, const VARIANT& value) {
  std::byte* place = PlaceOf(record, field);
  if (field.kind == Kind::Bytes) return WriteBytes(place, field, Behind(value));
  if (field.kind == Kind::Record) return WriteRecord(place, field, Behind(value));
  Variant converted;
  Convert(value, field.kind == Kind::Text ? VARTYPE{VT_BSTR} : field.type, LOCALE_USER_DEFAULT, converted.Get());
  if (field.kind == Kind::Number) {
    std::memcpy(place, &V_UI1(&converted.Get()), field.size);
    return;
  }
  BSTR before = nullptr;
  std::memcpy(&before, place, sizeof before);
  std::memcpy(place, &V_BSTR(&converted.Get()), sizeof(BSTR));
  V_VT(&converted.Get()) = VT_EMPTY;
  SysFreeString(before);
}

}  // namespace plexel::activex

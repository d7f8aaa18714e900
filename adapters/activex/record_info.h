#pragma once

#include <ole2.h>
#include <windows.h>

#include "activex/module.h"
#include "activex/record_layout.h"

namespace plexel::activex {

/// Describes a record to hosts, and makes, copies and ends such records for them. The system's own description serves
/// languages that fill in records themselves; this one copies every kind of field everywhere.
class RecordInfo final : public IRecordInfo, private module::Use {
 public:
  /// Of a record of the library, by its name. ResultError when it cannot be had.
  static ComPointer<RecordInfo> Of(ITypeLib& library, const wchar_t* name);

  const RecordLayout& Layout() const { return layout_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  HRESULT STDMETHODCALLTYPE RecordInit(PVOID made) override;
  HRESULT STDMETHODCALLTYPE RecordClear(PVOID existing) override;
  HRESULT STDMETHODCALLTYPE RecordCopy(PVOID existing, PVOID made) override;
  HRESULT STDMETHODCALLTYPE GetGuid(GUID* id) override;
  HRESULT STDMETHODCALLTYPE GetName(BSTR* name) override;
  HRESULT STDMETHODCALLTYPE GetSize(ULONG* size) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(ITypeInfo** type) override;
  HRESULT STDMETHODCALLTYPE GetField(PVOID data, LPCOLESTR name, VARIANT* value) override;
  HRESULT STDMETHODCALLTYPE GetFieldNoCopy(PVOID data, LPCOLESTR name, VARIANT* value, PVOID* array) override;
  HRESULT STDMETHODCALLTYPE PutField(ULONG flags, PVOID data, LPCOLESTR name, VARIANT* value) override;
  HRESULT STDMETHODCALLTYPE PutFieldNoCopy(ULONG flags, PVOID data, LPCOLESTR name, VARIANT* value) override;
  HRESULT STDMETHODCALLTYPE GetFieldNames(ULONG* count, BSTR* names) override;
  WINBOOL STDMETHODCALLTYPE IsMatchingType(IRecordInfo* other) override;
  PVOID STDMETHODCALLTYPE RecordCreate() override;
  HRESULT STDMETHODCALLTYPE RecordCreateCopy(PVOID source, PVOID* made) override;
  HRESULT STDMETHODCALLTYPE RecordDestroy(PVOID record) override;

 private:
  explicit RecordInfo(ITypeInfo& type) : type_(&type), layout_(RecordLayout::Of(type)) {}
  ~RecordInfo() = default;

  LONG holds_ = 0;
  ComPointer<ITypeInfo> type_;
  RecordLayout layout_;
};

}  // namespace plexel::activex

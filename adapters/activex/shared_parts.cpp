#include "activex/shared_parts.h"

#include "activex/guard.h"
#include "activex/module.h"

namespace plexel::activex {

namespace {

std::weak_ptr<SharedParts> theParts;

}  // namespace

std::shared_ptr<SharedParts> SharedParts::Get() {
  std::shared_ptr<SharedParts> parts = theParts.lock();
  if (parts == nullptr) {
    parts = std::make_shared<SharedParts>();
    theParts = parts;
  }
  if (parts->thread_ != GetCurrentThreadId()) throw ResultError(RPC_E_WRONG_THREAD);
  return parts;
}

ITypeLib& SharedParts::Library() {
  if (!library_) library_ = module::TypeLibrary();
  if (!library_) throw ResultError(TYPE_E_CANTLOADLIBRARY);
  return *library_.Get();
}

ComPointer<ITypeInfo> SharedParts::Type(REFGUID id) {
  ComPointer<ITypeInfo> type;
  Check(Library().GetTypeInfoOfGuid(id, type.Out()));
  return type;
}

ComPointer<RecordInfo> SharedParts::ScanCodeInfo() {
  if (!scanCodeInfo_) scanCodeInfo_ = RecordInfo::Of(Library(), L"udtTactisBaseElement_ScanCodeInfo");
  return scanCodeInfo_;
}

}  // namespace plexel::activex

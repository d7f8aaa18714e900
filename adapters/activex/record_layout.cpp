#include "activex/record_layout.h"

#include <memory>

#include "activex/guard.h"
#include "win32/bstr.h"
#include "win32/wide_text.h"

namespace plexel::activex {

namespace {

using Field = RecordLayout::Field;
using Kind = RecordLayout::Kind;

struct AttributesEnd {
  ITypeInfo* type;
  void operator()(TYPEATTR* attributes) const { type->ReleaseTypeAttr(attributes); }
};

std::unique_ptr<TYPEATTR, AttributesEnd> AttributesOf(ITypeInfo& type) {
  TYPEATTR* attributes = nullptr;
  Check(type.GetTypeAttr(&attributes));
  return {attributes, AttributesEnd{&type}};
}

std::size_t SizeOf(VARTYPE type) {
  switch (type) {
    case VT_UI1:
    case VT_I1:
      return 1;
    case VT_BOOL:
    case VT_I2:
    case VT_UI2:
      return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
      return 4;
    default:
      throw ResultError(TYPE_E_UNSUPFORMAT);
  }
}

void DescribeNumber(Field& field, VARTYPE type) {
  field.kind = Kind::Number;
  field.type = type;
  field.size = SizeOf(type);
}

void DescribeNamed(Field& field, ITypeInfo& owner, HREFTYPE reference) {
  ComPointer<ITypeInfo> named;
  Check(owner.GetRefTypeInfo(reference, named.Out()));
  const auto attributes = AttributesOf(*named.Get());
  if (attributes->typekind == TKIND_ENUM) return DescribeNumber(field, VT_I4);
  if (attributes->typekind != TKIND_RECORD) throw ResultError(TYPE_E_UNSUPFORMAT);
  field.kind = Kind::Record;
  field.size = attributes->cbSizeInstance;
  field.record = named;
}

void DescribeBytes(Field& field, const ARRAYDESC& array) {
  if (array.cDims != 1 || array.tdescElem.vt != VT_UI1) throw ResultError(TYPE_E_UNSUPFORMAT);
  field.kind = Kind::Bytes;
  field.size = array.rgbounds[0].cElements;
}

void Describe(Field& field, ITypeInfo& owner, const TYPEDESC& type) {
  switch (type.vt) {
    case VT_BSTR:
      field.kind = Kind::Text;
      field.size = sizeof(BSTR);
      break;
    case VT_CARRAY:
      DescribeBytes(field, *type.lpadesc);
      break;
    case VT_USERDEFINED:
      DescribeNamed(field, owner, type.hreftype);
      break;
    default:
      DescribeNumber(field, type.vt);
      break;
  }
}

Field FieldAt(ITypeInfo& owner, UINT index) {
  VARDESC* given = nullptr;
  Check(owner.GetVarDesc(index, &given));
  const auto end = [&owner](VARDESC* description) { owner.ReleaseVarDesc(description); };
  const std::unique_ptr<VARDESC, decltype(end)> description(given, end);
  Field field;
  Bstr name;
  UINT count = 0;
  Check(owner.GetNames(description->memid, name.Out(), 1, &count));
  field.name = ContentOf(name.Get());
  field.offset = description->oInst;
  Describe(field, owner, description->elemdescVar.tdesc);
  return field;
}

}  // namespace

const Field* RecordLayout::Find(std::wstring_view asked) const {
  for (const Field& field : fields) {
    if (SameInAnyCase(field.name, asked)) return &field;
  }
  return nullptr;
}

RecordLayout RecordLayout::Of(ITypeInfo& type) {
  const auto attributes = AttributesOf(type);
  if (attributes->typekind != TKIND_RECORD) throw ResultError(TYPE_E_UNSUPFORMAT);
  RecordLayout layout;
  Bstr name;
  Check(type.GetDocumentation(MEMBERID_NIL, name.Out(), nullptr, nullptr, nullptr));
  layout.name = ContentOf(name.Get());
  layout.id = attributes->guid;
  layout.size = attributes->cbSizeInstance;
  for (UINT index = 0; index < attributes->cVars; ++index) {
    const Field& field = layout.fields.emplace_back(FieldAt(type, index));
    if (field.kind == Kind::Text) layout.texts.push_back(field.offset);
    if (field.kind != Kind::Record) continue;
    for (const std::size_t text : Of(*field.record.Get()).texts) layout.texts.push_back(field.offset + text);
  }
  return layout;
}

}  // namespace plexel::activex

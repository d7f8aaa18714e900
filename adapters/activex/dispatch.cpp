#include "activex/dispatch.h"

#include <algorithm>
#include <array>
#include <string>

#include "activex/conversion.h"
#include "activex/members.h"
#include "activex/record_values.h"
#include "element/property_table.h"
#include "win32/bstr.h"
#include "win32/variant.h"

namespace plexel::activex {

namespace {

constexpr WORD Putting = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;

const std::span<const PropertyRow> properties = PropertyTable();

/// The place of a member, properties first; beyond all for no number of a member.
std::size_t RowOf(DISPID member) { return static_cast<std::size_t>(member) - 1; }

/// The types in which callers by name give and get properties, in the order of PropertyType; whole numbers and booleans
/// stand first.
constexpr std::array<VARTYPE, 8> types = {VT_I2, VT_I4, VT_UI1, VT_BOOL, VT_R8, VT_BSTR, VT_DISPATCH, VT_RECORD};
static_assert(static_cast<std::size_t>(PropertyType::Record) + 1 == types.size());

constexpr VARTYPE TypeOf(PropertyType type) { return types[static_cast<std::size_t>(type)]; }

constexpr bool IsWhole(PropertyType type) { return type <= PropertyType::Bool; }

/// A number that a colour may be written as: 32 bits, with a sign or without.
void ConvertWhole(const VARIANT& value, LCID locale, VARIANT& converted) {
  try {
    Convert(value, VT_I4, locale, converted);
  } catch (const ResultError& error) {
    if (error.Result() != DISP_E_OVERFLOW) throw;
    Variant wide;
    Convert(value, VT_UI4, locale, wide.Get());
    V_VT(&converted) = VT_I4;
    V_I4(&converted) = static_cast<LONG>(V_UI4(&wide.Get()));
  }
}

/// The number in a value of a type that a whole number or a boolean has.
std::int32_t WholeIn(const VARIANT& value) {
  switch (V_VT(&value)) {
    case VT_I4:
      return V_I4(&value);
    case VT_UI1:
      return V_UI1(&value);
    default:
      return V_I2(&value);  // a boolean lies in the same place
  }
}

/// Whether a call puts one value, and no more than that.
bool PutsOneValue(WORD flags, const DISPPARAMS* given) {
  return flags == DISPATCH_PROPERTYPUT && given != nullptr && given->cArgs == 1 && given->rgvarg != nullptr &&
         given->cNamedArgs == 1 && given->rgdispidNamedArgs != nullptr &&
         *given->rgdispidNamedArgs == DISPID_PROPERTYPUT;
}

PropertyData DataOf(const VARIANT& value) {
  if (V_VT(&value) == VT_R8) return V_R8(&value);
  if (V_VT(&value) == VT_BSTR) return NarrowOf(V_BSTR(&value));
  return WholeIn(value);
}

/// A value of another type than the property's.
PropertyData Converted(const VARIANT& given, VARTYPE type, LCID locale) {
  Variant converted;
  if (type == VT_I4) {
    ConvertWhole(given, locale, converted.Get());
  } else {
    Convert(given, type, locale, converted.Get());
  }
  return DataOf(converted.Get());
}

void Give(const PropertyData& data, VARTYPE type, VARIANT& answer) {
  if (const auto* text = std::get_if<std::string>(&data)) {
    V_BSTR(&answer) = NewBstr(*text);
  } else if (const auto* number = std::get_if<double>(&data)) {
    V_R8(&answer) = *number;
  } else {
    V_I4(&answer) = std::get<std::int32_t>(data);  // the shorter types are its low bytes
  }
  V_VT(&answer) = type;
}

/// The record that a value holds or refers to. ResultError when it is none of the element's.
RecordOutside& RecordIn(const VARIANT& given, RecordInfo& info) {
  const VARIANT& value = Behind(given);
  if ((V_VT(&value) & ~VT_BYREF) != VT_RECORD || V_RECORD(&value) == nullptr ||
      !info.IsMatchingType(V_RECORDINFO(&value))) {
    throw ResultError(DISP_E_TYPEMISMATCH);
  }
  return *static_cast<RecordOutside*>(V_RECORD(&value));
}

/// The arguments of a method by their places, out of those given by place and by name.
class Arguments {
 public:
  Arguments(const DISPPARAMS& given, std::size_t wanted) {
    if (given.cArgs != wanted || given.cNamedArgs > given.cArgs) throw ResultError(DISP_E_BADPARAMCOUNT);
    if (given.cArgs > 0 && given.rgvarg == nullptr) throw ResultError(E_POINTER);
    if (given.cNamedArgs > 0 && given.rgdispidNamedArgs == nullptr) throw ResultError(E_POINTER);
    for (UINT index = 0; index < given.cArgs; ++index) {
      const bool named = index < given.cNamedArgs;
      const auto place = named ? static_cast<std::size_t>(given.rgdispidNamedArgs[index]) : given.cArgs - 1 - index;
      if (place >= wanted || values_.at(place) != nullptr) throw ResultError(DISP_E_PARAMNOTFOUND);
      values_.at(place) = &given.rgvarg[index];
    }
  }

  const VARIANT& At(std::size_t place) const { return *values_.at(place); }

 private:
  std::array<const VARIANT*, 2> values_{};
};

LONG Whole(const VARIANT& value, LCID locale) {
  Variant converted;
  Convert(value, VT_I4, locale, converted.Get());
  return V_I4(&converted.Get());
}

VARIANT_BOOL Flag(const VARIANT& value, LCID locale) {
  Variant converted;
  Convert(value, VT_BOOL, locale, converted.Get());
  return V_BOOL(&converted.Get());
}

void Fill(EXCEPINFO& trouble, const Trouble& happened) noexcept {
  trouble = {};
  trouble.scode = happened.result;
  try {
    const Bstr source(ErrorSource), what{std::string_view(happened.what)};
    trouble.bstrSource = SysAllocString(source.Get());
    trouble.bstrDescription = SysAllocString(what.Get());
  } catch (const std::bad_alloc&) {  // the number alone tells it then
  }
}

/// Whether a result tells of the call rather than of what the member did.
bool IsOfTheCall(HRESULT result) { return HRESULT_FACILITY(result) == FACILITY_DISPATCH; }

}  // namespace

template <typename Procedure>
[[gnu::always_inline]] inline HRESULT Dispatch::Told(EXCEPINFO* trouble, const std::string_view& member,
                                                     Procedure&& procedure) {
  try {
    return procedure();
  } catch (const ResultError& error) {
    if (IsOfTheCall(error.Result())) return error.Result();
    throw;
  } catch (...) {
    if (trouble == nullptr) throw;
    Fill(*trouble, TroubleNow(member));
    return DISP_E_EXCEPTION;
  }
}

HRESULT Dispatch::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

HRESULT Dispatch::GetTypeInfo(UINT index, ITypeInfo** type) {
  if (type == nullptr) return E_POINTER;
  *type = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  return Guarded("GetTypeInfo", [&] {
    *type = control_.Shared().Type(__uuidof(_ctlPlexelBaseElement)).HandOn();
    return S_OK;
  });
}

HRESULT Dispatch::GetIDsOfNames(REFIID kind, LPOLESTR* names, UINT count, DISPID* numbers) {
  if (kind != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (names == nullptr || numbers == nullptr) return E_POINTER;
  if (count == 0) return E_INVALIDARG;
  std::fill_n(numbers, count, DISPID_UNKNOWN);
  if (names[0] == nullptr) return E_POINTER;
  numbers[0] = MemberNumber(names[0]);
  bool all = numbers[0] != DISPID_UNKNOWN;
  const auto method = static_cast<std::size_t>(numbers[0] - 1) - properties.size();
  for (UINT index = 1; index < count; ++index) {
    if (names[index] != nullptr && all && method < Methods().size()) {
      const auto arguments = Methods()[method].arguments;
      const auto found = std::find_if(arguments.begin(), arguments.end(),
                                      [&](std::string_view name) { return SameName(name, names[index]); });
      if (found != arguments.end()) numbers[index] = static_cast<DISPID>(found - arguments.begin());
    }
  }
  for (UINT index = 1; index < count; ++index) all = all && numbers[index] != DISPID_UNKNOWN;
  return all ? S_OK : DISP_E_UNKNOWNNAME;
}

[[gnu::always_inline]] inline HRESULT Dispatch::PutWhole(const PropertyRow& property, std::int32_t value,
                                                         EXCEPINFO* trouble) {
  return control_.Run(property.name, [&] {
    return Told(trouble, property.name, [&] {
      property.setWhole(control_.TheElement(), value);
      return S_OK;
    });
  });
}

/// The commonest of all calls has a short road: a number of the property's own type.
HRESULT Dispatch::Invoke(DISPID member, REFIID kind, LCID locale, WORD flags, DISPPARAMS* arguments, VARIANT* answer,
                         EXCEPINFO* trouble, UINT* wrongArgument) {
  const std::size_t row = RowOf(member);
  if (row < properties.size() && kind == IID_NULL && PutsOneValue(flags, arguments)) {
    const PropertyRow& property = properties[row];
    const VARIANT& value = *arguments->rgvarg;
    if (V_VT(&value) == TypeOf(property.type) && IsWhole(property.type)) {
      return PutWhole(property, WholeIn(value), trouble);
    }
  }
  return InvokeAny(member, kind, locale, flags, arguments, answer, trouble, wrongArgument);
}

HRESULT Dispatch::InvokeAny(DISPID number, REFIID kind, LCID locale, WORD flags, DISPPARAMS* arguments, VARIANT* answer,
                            EXCEPINFO* trouble, UINT* wrongArgument) {
  if (kind != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (arguments == nullptr) return E_POINTER;
  const std::size_t row = RowOf(number);
  const bool isProperty = row < properties.size();
  if (!isProperty && row - properties.size() >= Methods().size()) return DISP_E_MEMBERNOTFOUND;
  if (answer != nullptr) V_VT(answer) = VT_EMPTY;
  const Request request{locale, flags, arguments, answer, wrongArgument};
  const std::string_view member = isProperty ? properties[row].name : Methods()[row - properties.size()].name;
  return control_.Run(member, [&] {
    return Told(trouble, member, [&] {
      return isProperty ? InvokeProperty(request, properties[row]) : InvokeMethod(request, row - properties.size());
    });
  });
}

HRESULT Dispatch::InvokeProperty(const Request& request, const PropertyRow& row) {
  if ((request.flags & Putting) != 0) return Put(request, row);
  if ((request.flags & DISPATCH_PROPERTYGET) == 0) return DISP_E_MEMBERNOTFOUND;
  if (request.arguments->cArgs != 0) return DISP_E_BADPARAMCOUNT;
  return request.answer == nullptr ? S_OK : Fetch(request, row);
}

HRESULT Dispatch::Put(const Request& request, const PropertyRow& row) {
  const DISPPARAMS& given = *request.arguments;
  if (given.cArgs != 1) return DISP_E_BADPARAMCOUNT;
  if (given.rgvarg == nullptr) return E_POINTER;
  if (given.cNamedArgs > 1 || (given.cNamedArgs == 1 && given.rgdispidNamedArgs == nullptr))
    return DISP_E_BADPARAMCOUNT;
  if (given.cNamedArgs == 1 && *given.rgdispidNamedArgs != DISPID_PROPERTYPUT) return DISP_E_PARAMNOTFOUND;
  if (request.wrongArgument != nullptr) *request.wrongArgument = 0;
  const VARIANT& value = given.rgvarg[0];
  if (row.type == PropertyType::Object) return PutForm(Behind(value));
  if (row.type == PropertyType::Record) {
    Check(element_.put_TactisBaseElementScanCodeBuffer(&RecordIn(value, *control_.Shared().ScanCodeInfo().Get())));
    return S_OK;
  }
  const VARTYPE type = TypeOf(row.type);
  row.set(control_.TheElement(), V_VT(&value) == type ? DataOf(value) : Converted(value, type, request.locale),
          row.name);
  return S_OK;
}

HRESULT Dispatch::Fetch(const Request& request, const PropertyRow& row) {
  if (row.type == PropertyType::Object) return FetchForm(*request.answer);
  if (row.type == PropertyType::Record) return FetchRecord(*request.answer);
  Give(row.get(control_.TheElement()), TypeOf(row.type), *request.answer);
  return S_OK;
}

HRESULT Dispatch::PutForm(const VARIANT& value) {
  Variant held;
  Check(CopyBehind(value, held.Get()));
  const VARTYPE type = V_VT(&held.Get());
  if (type == VT_EMPTY || type == VT_NULL) return element_.putref_ParentWindow(nullptr);
  if (type != VT_DISPATCH && type != VT_UNKNOWN) return DISP_E_TYPEMISMATCH;
  const auto form = As<IDispatch>(V_UNKNOWN(&held.Get()));
  if (!form && V_UNKNOWN(&held.Get()) != nullptr) return S_OK;  // an object, but no form
  return element_.putref_ParentWindow(form.Get());
}

HRESULT Dispatch::FetchForm(VARIANT& answer) {
  Check(element_.get_ParentWindow(&V_DISPATCH(&answer)));
  V_VT(&answer) = VT_DISPATCH;
  return S_OK;
}

HRESULT Dispatch::FetchRecord(VARIANT& answer) {
  ComPointer<RecordInfo> info = control_.Shared().ScanCodeInfo();
  void* const record = info->RecordCreate();
  if (record == nullptr) return E_OUTOFMEMORY;
  const HRESULT result = element_.get_TactisBaseElementScanCodeBuffer(static_cast<RecordOutside*>(record));
  if (FAILED(result)) {
    info->RecordDestroy(record);
    return result;
  }
  V_RECORD(&answer) = record;
  V_RECORDINFO(&answer) = info.HandOn();
  V_VT(&answer) = VT_RECORD;
  return S_OK;
}

HRESULT Dispatch::InvokeMethod(const Request& request, std::size_t method) {
  if ((request.flags & DISPATCH_METHOD) == 0) return DISP_E_MEMBERNOTFOUND;
  const Arguments arguments(*request.arguments, Methods()[method].arguments.size());
  ctlPlexelBaseElement& element = control_.TheElement();
  switch (static_cast<MethodNumber>(method)) {
    case MethodNumber::OpenPropertiesDialog:
      return element_.OpenPropertiesDialog();
    case MethodNumber::OpenConfigurationDialog:
      return element_.OpenConfigurationDialog();
    case MethodNumber::UpdateFocus:
      element.UpdateFocus();
      break;
    case MethodNumber::Refresh:
      element.Refresh();
      break;
    case MethodNumber::ShowDefinedObject:
      element.ShowDefinedObject(Boolean::Raw(Flag(arguments.At(0), request.locale)));
      break;
    case MethodNumber::SetTactisBaseElementDefinition:
      element.SetTactisBaseElementDefinition(
          FromOutside(RecordIn(arguments.At(0), *control_.Shared().ScanCodeInfo().Get())));
      break;
    case MethodNumber::CheckIfLedIsAlreadyDefined: {
      const auto type = static_cast<enumLedType>(Whole(arguments.At(0), request.locale));
      const Boolean defined = element.CheckIfLedIsAlreadyDefined(type, Whole(arguments.At(1), request.locale));
      if (request.answer == nullptr) break;
      V_BOOL(request.answer) = defined.Value();
      V_VT(request.answer) = VT_BOOL;
      break;
    }
  }
  return S_OK;
}

}  // namespace plexel::activex

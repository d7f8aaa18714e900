#pragma once

#include <PlexelBaseElement.h>
#include <ole2.h>
#include <windows.h>

#include <string_view>

#include "activex/control.h"
#include "element/property_row.h"

namespace plexel::activex {

/// The element's interface for those who call by name, such as scripts. It takes and gives records too, which the
/// system's own calls by name do not do everywhere.
class Dispatch {
 public:
  Dispatch(Control& control, _ctlPlexelBaseElement& element) : control_(control), element_(element) {}

  HRESULT GetTypeInfoCount(UINT* count);
  HRESULT GetTypeInfo(UINT index, ITypeInfo** type);
  HRESULT GetIDsOfNames(REFIID kind, LPOLESTR* names, UINT count, DISPID* numbers);
  /// What a call of IDispatch gets, in its order.
  HRESULT Invoke(DISPID member, REFIID kind, LCID locale, WORD flags, DISPPARAMS* arguments, VARIANT* answer,
                 EXCEPINFO* trouble, UINT* wrongArgument);

 private:
  /// What a call brings.
  struct Request {
    LCID locale;
    WORD flags;
    DISPPARAMS* arguments;
    VARIANT* answer;
    UINT* wrongArgument;
  };

  HRESULT InvokeAny(DISPID member, REFIID kind, LCID locale, WORD flags, DISPPARAMS* arguments, VARIANT* answer,
                    EXCEPINFO* trouble, UINT* wrongArgument);
  HRESULT PutWhole(const PropertyRow& property, std::int32_t value, EXCEPINFO* trouble);
  HRESULT InvokeProperty(const Request& request, const PropertyRow& row);
  HRESULT InvokeMethod(const Request& request, std::size_t method);
  HRESULT Put(const Request& request, const PropertyRow& row);
  HRESULT Fetch(const Request& request, const PropertyRow& row);
  HRESULT PutForm(const VARIANT& value);
  HRESULT FetchForm(VARIANT& answer);
  HRESULT FetchRecord(VARIANT& answer);
  /// Runs a call with an exception told as those who call by name expect it.
  template <typename Procedure>
  HRESULT Told(EXCEPINFO* trouble, const std::string_view& member, Procedure&& procedure);

  Control& control_;
  _ctlPlexelBaseElement& element_;
};

}  // namespace plexel::activex

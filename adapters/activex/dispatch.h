#pragma once

#include <PlexelBaseElement.h>
#include <ole2.h>
#include <windows.h>

#include "activex/control.h"
#include "element/property_row.h"

namespace plexel::activex {

/// The element's interface for those who call by name, such as scripts. It takes and gives records too, which the
/// system's own calls by name do not do everywhere.
class Dispatch {
 public:
  /// One call, as IDispatch gets it.
  struct Request {
    DISPID member;
    REFIID kind;
    LCID locale;
    WORD flags;
    DISPPARAMS* arguments;
    VARIANT* answer;
    EXCEPINFO* trouble;
    UINT* wrongArgument;
  };

  Dispatch(Control& control, _ctlPlexelBaseElement& element) : control_(control), element_(element) {}

  HRESULT GetTypeInfoCount(UINT* count);
  HRESULT GetTypeInfo(UINT index, ITypeInfo** type);
  HRESULT GetIDsOfNames(REFIID kind, LPOLESTR* names, UINT count, DISPID* numbers);
  HRESULT Invoke(const Request& request);

 private:
  HRESULT InvokeProperty(const Request& request, const PropertyRow& row);
  HRESULT InvokeMethod(const Request& request, std::size_t method);
  HRESULT Put(const Request& request, const PropertyRow& row);
  HRESULT Fetch(const Request& request, const PropertyRow& row);
  HRESULT PutForm(const VARIANT& value);
  HRESULT FetchForm(VARIANT& answer);
  HRESULT FetchRecord(VARIANT& answer);
  /// Runs a call with an exception told as those who call by name expect it.
  template <typename Procedure>
  HRESULT Told(const Request& request, Procedure&& procedure);

  Control& control_;
  _ctlPlexelBaseElement& element_;
};

}  // namespace plexel::activex

#pragma once

#include <ole2.h>
#include <windows.h>

#include <string>
#include <vector>

namespace plexel::activex {

/// Calls by name, as scripts make them.
class Late {
 public:
  explicit Late(IDispatch* object) : object_(object) {}

  HRESULT Put(const wchar_t* name, VARIANT value, WORD way = DISPATCH_PROPERTYPUT);
  HRESULT Put(const wchar_t* name, long value);
  HRESULT Put(const wchar_t* name, const wchar_t* value);
  HRESULT Get(const wchar_t* name, VARIANT& value);
  /// A value as text, with its type ahead: "3:20".
  std::wstring Get(const wchar_t* name);
  HRESULT Call(const wchar_t* name, std::vector<VARIANT> arguments = {}, VARIANT* answer = nullptr);

  /// What the last call that failed told.
  std::wstring description, source;
  HRESULT code = S_OK;

 private:
  HRESULT Invoke(const wchar_t* name, WORD way, DISPPARAMS& arguments, VARIANT* answer);
  IDispatch* object_;
};

VARIANT Number(long value);
VARIANT Boolean16(short value);

}  // namespace plexel::activex

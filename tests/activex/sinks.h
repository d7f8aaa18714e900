#pragma once

#include <ocidl.h>
#include <ole2.h>
#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "activex/library.h"
#include "activex/object.h"

namespace plexel::activex {

/// Hears the control's events, as lines of their number and arguments.
class EventSink : public TestObject<NoNames<IDispatch>> {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID event, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*,
                                   UINT*) override;

  std::vector<std::wstring> heard;
  /// Called in every handler.
  std::function<void(DISPID)> onEvent;
  HRESULT answer = S_OK;
};

/// Hears which properties changed.
class NoticeSink : public TestObject<IPropertyNotifySink> {
 public:
  HRESULT STDMETHODCALLTYPE OnChanged(DISPID property) override {
    heard.push_back(property);
    if (onChanged) onChanged(property);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return S_OK; }

  std::vector<DISPID> heard;
  std::function<void(DISPID)> onChanged;
};

/// A sink's connection, which ends with it.
class Connection {
 public:
  Connection(IUnknown* control, REFIID kind, IUnknown* sink);
  ~Connection() { End(); }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  HRESULT Result() const { return result_; }
  void End();

 private:
  ComPointer<IConnectionPoint> point_;
  DWORD cookie_ = 0;
  HRESULT result_ = E_FAIL;
};

}  // namespace plexel::activex

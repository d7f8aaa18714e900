#pragma once

#include <PlexelBaseElement.h>

#include <functional>
#include <utility>

#include "host/com_object.h"
#include "host/element_event.h"

namespace plexel::host {

/// Hears the events of one control.
class EventSink : public ComObject<DispatchPart<IDispatch>> {
 public:
  /// What it calls with each event; it throws nothing.
  explicit EventSink(std::function<void(const ElementEvent&)> heard) : heard_(std::move(heard)) {}

  HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT* answer,
                                   EXCEPINFO* error, UINT* wrong) override;

 protected:
  void* Find(REFIID iid) override;

 private:
  std::function<void(const ElementEvent&)> heard_;
};

}  // namespace plexel::host

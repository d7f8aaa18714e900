#pragma once

#include <ocidl.h>
#include <ole2.h>
#include <windows.h>

#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "activex/com_pointer.h"
#include "activex/face.h"

namespace plexel::activex {

/// Where sinks of one kind connect to the control. It lives as long as the control.
class ConnectionPoint : public IConnectionPoint {
 public:
  using Sinks = std::vector<std::pair<DWORD, ComPointer<IUnknown>>>;

  ConnectionPoint(Control& control, REFIID kind) : control_(control), kind_(kind) {}
  virtual ~ConnectionPoint() = default;
  ConnectionPoint(const ConnectionPoint&) = delete;
  ConnectionPoint& operator=(const ConnectionPoint&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return control_.Outer().AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return control_.Outer().Release(); }
  HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* kind) override;
  HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** container) override;
  HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override;
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
  HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) override;

  REFIID Kind() const { return kind_; }
  bool HasSinks() const { return sinks_ != nullptr && !sinks_->empty(); }
  /// Lets go of all.
  void Forget() { sinks_ = nullptr; }

 protected:
  /// The sinks of this moment: they may come and go while they are told.
  std::shared_ptr<const Sinks> Now() const { return sinks_; }
  /// The interface of a sink that is called; null for a sink without it.
  virtual ComPointer<IUnknown> Wanted(IUnknown* sink) const = 0;

 private:
  Control& control_;
  IID kind_;
  DWORD lastCookie_ = 0;
  std::shared_ptr<const Sinks> sinks_;
};

/// The sinks of the control's events.
class EventPoint final : public ConnectionPoint {
 public:
  explicit EventPoint(Control& control);
  /// Calls all sinks. Failure (Handler) when a handler failed, after all were called. Nothing while events are frozen.
  void Raise(DISPID event, std::span<VARIANTARG> reversed);
  /// Containers freeze events, and thaw them as often.
  void Freeze(bool freeze);

 private:
  ComPointer<IUnknown> Wanted(IUnknown* sink) const override;
  int frozen_ = 0;
};

/// The sinks of changed properties.
class NoticePoint final : public ConnectionPoint {
 public:
  explicit NoticePoint(Control& control);
  void Tell(DISPID property);

 private:
  ComPointer<IUnknown> Wanted(IUnknown* sink) const override;
};

/// Both.
class ConnectionPoints final : public Face<IConnectionPointContainer> {
 public:
  explicit ConnectionPoints(Control& control) : Face(control), events_(control), notices_(control) {}

  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override;
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID kind, IConnectionPoint** point) override;

  EventPoint& Events() { return events_; }
  NoticePoint& Notices() { return notices_; }

 private:
  EventPoint events_;
  NoticePoint notices_;
};

}  // namespace plexel::activex

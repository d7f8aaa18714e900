#include "activex/connection_points.h"

#include <PlexelBaseElement.h>
#include <olectl.h>

#include <algorithm>

#include "activex/dispatch_call.h"
#include "activex/enumerator.h"
#include "platform/failure.h"

namespace plexel::activex {

namespace {

using Sinks = ConnectionPoint::Sinks;

CONNECTDATA CopyOfSink(const Sinks::value_type& sink) { return {sink.second.Shared(), sink.first}; }

IConnectionPoint* CopyOfPoint(const ComPointer<IConnectionPoint>& point) { return point.Shared(); }

using SinkList = Enumerator<IEnumConnections, Sinks::value_type, CONNECTDATA, CopyOfSink>;
using PointList = Enumerator<IEnumConnectionPoints, ComPointer<IConnectionPoint>, IConnectionPoint*, CopyOfPoint>;

}  // namespace

HRESULT ConnectionPoint::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  const bool known = iid == __uuidof(IUnknown) || iid == __uuidof(IConnectionPoint);
  *object = known ? this : nullptr;
  if (known) AddRef();
  return known ? S_OK : E_NOINTERFACE;
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* kind) {
  if (kind == nullptr) return E_POINTER;
  *kind = kind_;
  return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
  if (container == nullptr) return E_POINTER;
  return control_.Outer().QueryInterface(__uuidof(IConnectionPointContainer), reinterpret_cast<void**>(container));
}

HRESULT ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
  if (cookie != nullptr) *cookie = 0;
  if (sink == nullptr || cookie == nullptr) return E_POINTER;
  return control_.Run("Advise", [&] {
    ComPointer<IUnknown> wanted = Wanted(sink);
    if (!wanted) return CONNECT_E_CANNOTCONNECT;
    auto sinks = sinks_ == nullptr ? std::make_shared<Sinks>() : std::make_shared<Sinks>(*sinks_);
    sinks->emplace_back(++lastCookie_, std::move(wanted));
    sinks_ = std::move(sinks);
    *cookie = lastCookie_;
    return S_OK;
  });
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie) {
  return control_.Run("Unadvise", [&] {
    const auto before = sinks_;  // a sink may call back when it is let go of
    if (before == nullptr) return CONNECT_E_NOCONNECTION;
    auto sinks = std::make_shared<Sinks>(*before);
    if (std::erase_if(*sinks, [cookie](const auto& sink) { return sink.first == cookie; }) == 0) {
      return CONNECT_E_NOCONNECTION;
    }
    sinks_ = std::move(sinks);
    return S_OK;
  });
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** connections) {
  if (connections == nullptr) return E_POINTER;
  return Guarded("EnumConnections", [&] {
    *connections = ComPointer<IEnumConnections>(new SinkList(sinks_ == nullptr ? Sinks() : *sinks_)).HandOn();
    return S_OK;
  });
}

EventPoint::EventPoint(Control& control) : ConnectionPoint(control, __uuidof(__ctlPlexelBaseElement)) {}

ComPointer<IUnknown> EventPoint::Wanted(IUnknown* sink) const {
  ComPointer<IUnknown> events;
  if (SUCCEEDED(sink->QueryInterface(Kind(), events.OutVoid())) && events) return events;
  (void)events.HandOn();
  return ComPointer<IUnknown>(As<IDispatch>(sink).Get());
}

void EventPoint::Raise(DISPID event, std::span<VARIANTARG> reversed) {
  if (frozen_ > 0 || !HasSinks()) return;
  bool failed = false;
  const auto sinks = Now();
  for (const auto& [cookie, sink] : *sinks) {
    Variant answer;
    auto& handler = *static_cast<IDispatch*>(sink.Get());
    failed |= Call(handler, event, DISPATCH_METHOD, reversed, answer) == DISP_E_EXCEPTION;
  }
  if (failed) throw Failure(FailureKind::Handler, "a handler of the event has failed");
}

void EventPoint::Freeze(bool freeze) { frozen_ = std::max(0, frozen_ + (freeze ? 1 : -1)); }

NoticePoint::NoticePoint(Control& control) : ConnectionPoint(control, __uuidof(IPropertyNotifySink)) {}

ComPointer<IUnknown> NoticePoint::Wanted(IUnknown* sink) const {
  return ComPointer<IUnknown>(As<IPropertyNotifySink>(sink).Get());
}

void NoticePoint::Tell(DISPID property) {
  const auto sinks = Now();
  if (sinks == nullptr) return;
  for (const auto& [cookie, sink] : *sinks) static_cast<IPropertyNotifySink*>(sink.Get())->OnChanged(property);
}

HRESULT ConnectionPoints::EnumConnectionPoints(IEnumConnectionPoints** points) {
  if (points == nullptr) return E_POINTER;
  return Guarded("EnumConnectionPoints", [&] {
    std::vector all = {ComPointer<IConnectionPoint>(&events_), ComPointer<IConnectionPoint>(&notices_)};
    *points = ComPointer<IEnumConnectionPoints>(new PointList(std::move(all))).HandOn();
    return S_OK;
  });
}

HRESULT ConnectionPoints::FindConnectionPoint(REFIID kind, IConnectionPoint** point) {
  if (point == nullptr) return E_POINTER;
  *point = nullptr;
  for (ConnectionPoint* const candidate :
       {static_cast<ConnectionPoint*>(&events_), static_cast<ConnectionPoint*>(&notices_)}) {
    if (candidate->Kind() == kind) *point = candidate;
  }
  if (*point == nullptr) return CONNECT_E_NOCONNECTION;
  (*point)->AddRef();
  return S_OK;
}

}  // namespace plexel::activex

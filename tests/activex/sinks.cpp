#include "activex/sinks.h"

#include <array>

#include "win32/bstr.h"
#include "win32/variant.h"

namespace plexel::activex {

HRESULT EventSink::QueryInterface(REFIID iid, void** object) {
  const bool known = iid == __uuidof(IUnknown) || iid == __uuidof(IDispatch) || iid == __uuidof(__ctlPlexelBaseElement);
  *object = known ? static_cast<IDispatch*>(this) : nullptr;
  if (known) AddRef();
  return known ? S_OK : E_NOINTERFACE;
}

HRESULT EventSink::Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) {
  static constexpr std::array names = {
      L"", L"DirectInputStatusChanged", L"SendKeyDefinition", L"MouseClicked", L"MouseDblClicked", L"ProjectModified"};
  std::wstring line = names.at(static_cast<std::size_t>(event));
  for (UINT index = arguments->cArgs; index-- > 0;) {
    Variant text;
    const bool shown = SUCCEEDED(VariantChangeType(&text.Get(), &arguments->rgvarg[index], 0, VT_BSTR));
    line += L"|" + std::to_wstring(V_VT(&arguments->rgvarg[index]) & ~VT_BYREF) + L":";
    if (shown) line.append(ContentOf(V_BSTR(&text.Get())));
  }
  heard.push_back(line);
  if (onEvent) onEvent(event);
  return answer;
}

Connection::Connection(IUnknown* control, REFIID kind, IUnknown* sink) {
  const auto container = As<IConnectionPointContainer>(control);
  result_ = container->FindConnectionPoint(kind, point_.Out());
  if (SUCCEEDED(result_)) result_ = point_->Advise(sink, &cookie_);
}

void Connection::End() {
  if (point_ && SUCCEEDED(result_)) point_->Unadvise(cookie_);
  point_ = nullptr;
}

}  // namespace plexel::activex

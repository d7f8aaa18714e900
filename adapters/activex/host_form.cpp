#include "activex/host_form.h"

#include <cstdint>
#include <optional>

#include "activex/dispatch_call.h"

namespace plexel::activex {

namespace {

/// Nothing for an object that is no form; a form may have no window at this moment.
std::optional<HWND> WindowOf(IDispatch* object) {
  HWND window = nullptr;
  if (const auto ole = As<IOleWindow>(object); ole && SUCCEEDED(ole->GetWindow(&window))) return window;
  Variant given, number;
  if (object == nullptr || !FetchProperty(*object, L"hWnd", given)) return std::nullopt;
  if (FAILED(VariantChangeType(&number.Get(), &given.Get(), 0, VT_I8))) return std::nullopt;
  return reinterpret_cast<HWND>(static_cast<std::intptr_t>(V_I8(&number.Get())));
}

}  // namespace

Window* HostForm::AsForm() { return WindowOf(form_.Get()) ? this : nullptr; }

HWND HostForm::Handle() const { return WindowOf(form_.Get()).value_or(nullptr); }

}  // namespace plexel::activex

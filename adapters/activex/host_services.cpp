#include "activex/host_services.h"

#include <servprov.h>

#include <string>

#include "platform/failure.h"
#include "win32/bstr.h"

namespace plexel::activex {

namespace {

void Answered(HRESULT result, const char* service) {
  if (FAILED(result)) throw Failure(FailureKind::Platform, std::string("the host's service has failed: ") + service);
}

/// Calls what gives a text. The object is held meanwhile.
template <typename Interface, typename Asking>
void FetchText(ComPointer<Interface> host, const char* service, std::string& text, Asking&& asking) {
  Bstr given;
  Answered(asking(*host.Get(), given.Out()), service);
  text = NarrowOf(given.Get());
}

template <typename Interface>
ComPointer<Interface> Offered(const ComPointer<IServiceProvider>& provider) {
  ComPointer<Interface> service;
  const auto& id = __uuidof(Interface);
  if (!provider || FAILED(provider->QueryService(id, id, service.OutVoid()))) (void)service.HandOn();
  return service;
}

}  // namespace

void HostLanguage::GetText(std::int32_t number, std::string& text) {
  FetchText(host, "GetText", text,
            [number](IPlexelLanguage& held, BSTR* given) { return held.GetText(number, given); });
}

void HostSettings::GetBasePath(std::string& text) {
  FetchText(host, "GetBasePath", text, [](IPlexelSettings& held, BSTR* given) { return held.GetBasePath(given); });
}

void HostSettings::GetLanguageName(std::string& text) {
  FetchText(host, "GetLanguageName", text,
            [](IPlexelSettings& held, BSTR* given) { return held.GetLanguageName(given); });
}

void HostSettings::GetOption(std::int32_t number, Boolean& value) {
  VARIANT_BOOL given = VARIANT_FALSE;
  const ComPointer<IPlexelSettings> held = host;
  Answered(held->GetOption(number, &given), "GetOption");
  value = Boolean::Raw(given);
}

void HostSettings::GetParameter(std::int32_t number, std::string& text) {
  FetchText(host, "GetParameter", text,
            [number](IPlexelSettings& held, BSTR* given) { return held.GetParameter(number, given); });
}

void HostSettings::GetWindowPosition(std::int32_t number, std::string& text) {
  FetchText(host, "GetWindowPosition", text,
            [number](IPlexelSettings& held, BSTR* given) { return held.GetWindowPosition(number, given); });
}

std::int32_t HostCapabilities::Ask(Capability query, std::string_view targetSystem) {
  LONG answer = 0;
  const ComPointer<IPlexelCapabilities> held = host;
  const Bstr name(CapabilityName(query)), target(targetSystem);
  Answered(held->Ask(name.Get(), target.Get(), &answer), "Ask");
  return answer;
}

void HostServices::Take(IUnknown* site) {
  const auto provider = As<IServiceProvider>(site);
  language.host = Offered<IPlexelLanguage>(provider);
  settings.host = Offered<IPlexelSettings>(provider);
  capabilities.host = Offered<IPlexelCapabilities>(provider);
}

}  // namespace plexel::activex

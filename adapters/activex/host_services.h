#pragma once

#include <PlexelBaseElement.h>
#include <ole2.h>
#include <windows.h>

#include "activex/com_pointer.h"
#include "services/surroundings.h"

namespace plexel::activex {

/// Services that a host offers at the control's site. What they answer with an error is a Failure (Platform). A host
/// may take them away while it is asked.

class HostLanguage : public LanguageService {
 public:
  ComPointer<IPlexelLanguage> host;
  void GetText(std::int32_t number, std::string& text) override;
};

class HostSettings : public SettingsService {
 public:
  ComPointer<IPlexelSettings> host;
  void GetBasePath(std::string& text) override;
  void GetLanguageName(std::string& text) override;
  void GetOption(std::int32_t number, Boolean& value) override;
  void GetParameter(std::int32_t number, std::string& text) override;
  void GetWindowPosition(std::int32_t number, std::string& text) override;
};

class HostCapabilities : public CapabilityService {
 public:
  ComPointer<IPlexelCapabilities> host;
  std::int32_t Ask(Capability query, std::string_view targetSystem) override;
};

/// All of a site. Those that the host does not offer have no `host`.
struct HostServices {
  HostLanguage language;
  HostSettings settings;
  HostCapabilities capabilities;

  /// Asks a site for them; null lets go of them.
  void Take(IUnknown* site);
};

}  // namespace plexel::activex

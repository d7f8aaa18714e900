#pragma once

#include <functional>

#include "platform/system.h"

namespace plexel {

/// The user's registry.
class NativeRegistry : public Registry {
 public:
  std::int32_t OpenKey(std::uint32_t root, std::string_view path, std::int32_t options, std::int32_t access,
                       std::intptr_t& key) override;
  std::int32_t SetValue(std::intptr_t key, std::string_view name, std::int32_t reserved, std::int32_t type,
                        std::string_view text, std::int32_t length) override;
  std::int32_t CloseKey(std::intptr_t key) override;
};

/// The screen, as the process sees it: one that knows nothing of its resolution sees 96 pixels to the inch.
class NativeScreen : public Screen {
 public:
  float TwipsPerPixelX() override;
  float TwipsPerPixelY() override;
  std::intptr_t CreateInformationContext() override;
  std::int32_t DeviceCapability(std::intptr_t context, std::int32_t index) override;
  void DeleteContext(std::intptr_t context) override;
};

class NativeVersion : public OsVersion {
 public:
  void Get(OsVersionRecord& record) override;
};

/// The system's viewer of compiled help, loaded when it is first asked for. Failure (Platform) where there is none.
class NativeHelp : public HelpViewer {
 public:
  NativeHelp();
  ~NativeHelp() override;
  NativeHelp(const NativeHelp&) = delete;
  NativeHelp& operator=(const NativeHelp&) = delete;
  void Show(std::intptr_t owner, std::string_view file, std::int32_t command, std::int32_t topic) override;

  /// The viewer's library, "hhctrl.ocx" at first.
  std::string library;

 private:
  void* module_ = nullptr;
};

}  // namespace plexel

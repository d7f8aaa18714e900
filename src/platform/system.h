#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace plexel {

/// Text values under a key of the user's registry. Handles are opaque.
class Registry {
 public:
  static constexpr std::uint32_t CurrentUser = 0x80000001U;
  static constexpr std::int32_t AccessSetValue = 2;
  static constexpr std::int32_t TypeText = 1;
  virtual ~Registry() = default;
  /// Opens an existing key; 0 on success. Never creates one.
  virtual std::int32_t OpenKey(std::uint32_t root, std::string_view path, std::int32_t options, std::int32_t access,
                               std::intptr_t& key) = 0;
  /// Stores the first `length` bytes of `text`; 0 on success.
  virtual std::int32_t SetValue(std::intptr_t key, std::string_view name, std::int32_t reserved, std::int32_t type,
                                std::string_view text, std::int32_t length) = 0;
  virtual std::int32_t CloseKey(std::intptr_t key) = 0;
};

/// The screen: the size of a pixel in twips (1/1440 inch) and the logical pixels of an inch.
class Screen {
 public:
  static constexpr std::int32_t LogicalPixelsX = 88;
  virtual ~Screen() = default;
  virtual float TwipsPerPixelX() = 0;
  virtual float TwipsPerPixelY() = 0;
  virtual std::intptr_t CreateInformationContext() = 0;
  virtual std::int32_t DeviceCapability(std::intptr_t context, std::int32_t index) = 0;
  virtual void DeleteContext(std::intptr_t context) = 0;
};

struct OsVersionRecord {
  std::int32_t size = 0;  ///< bytes; the caller sets 148
  std::int32_t platformId = 0;
};

class OsVersion {
 public:
  virtual ~OsVersion() = default;
  virtual void Get(OsVersionRecord& record) = 0;
};

/// The viewer of help files.
class HelpViewer {
 public:
  static constexpr std::int32_t HelpContext = 15;
  virtual ~HelpViewer() = default;
  virtual void Show(std::intptr_t owner, std::string_view file, std::int32_t command, std::int32_t topic) = 0;
};

}  // namespace plexel

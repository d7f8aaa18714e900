#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace plexel {

/// Text values under a key of the user's registry. Handles are opaque.
class Registry {
 public:
  /// The numbers that the component uses: the root, the access and the type of a value.
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
  /// Closes a key that was opened; 0 on success.
  virtual std::int32_t CloseKey(std::intptr_t key) = 0;
};

/// The screen: the size of a pixel in twips (1/1440 inch) and the logical pixels of an inch.
class Screen {
 public:
  /// The index of the logical pixels of an inch across.
  static constexpr std::int32_t LogicalPixelsX = 88;
  virtual ~Screen() = default;
  /// Twips of a pixel across.
  virtual float TwipsPerPixelX() = 0;
  /// Twips of a pixel down.
  virtual float TwipsPerPixelY() = 0;
  /// A context that answers questions about the screen; 0 when there is none. The caller deletes it.
  virtual std::intptr_t CreateInformationContext() = 0;
  /// The answer to a question of an index.
  virtual std::int32_t DeviceCapability(std::intptr_t context, std::int32_t index) = 0;
  /// Ends a context.
  virtual void DeleteContext(std::intptr_t context) = 0;
};

/// The answer of OsVersion.
struct OsVersionRecord {
  std::int32_t size = 0;  ///< bytes; the caller sets 148
  /// The kind of system; only 1 is told apart from the others.
  std::int32_t platformId = 0;
};

/// Tells the kind of operating system.
class OsVersion {
 public:
  virtual ~OsVersion() = default;
  /// Fills a record whose size is set.
  virtual void Get(OsVersionRecord& record) = 0;
};

/// The viewer of help files.
class HelpViewer {
 public:
  /// The command that shows a topic by its number.
  static constexpr std::int32_t HelpContext = 15;
  virtual ~HelpViewer() = default;
  /// Shows a topic of a help file. The owner is a window's handle, 0 for none.
  virtual void Show(std::intptr_t owner, std::string_view file, std::int32_t command, std::int32_t topic) = 0;
};

}  // namespace plexel

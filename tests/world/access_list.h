#pragma once

#include <sys/xattr.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>

namespace plexel {

inline constexpr const char* AccessListName = "system.posix_acl_access";

/// An access list by which the owner reads and writes, user 1234 and the group read, and anyone else does nothing; as
/// the system keeps it.
inline std::string SampleAccessList() {
  struct Entry {
    std::uint16_t tag, rights;
    std::uint32_t user;
  };
  constexpr std::uint32_t nobody = 0xFFFFFFFF;
  constexpr std::array<Entry, 5> entries = {
      {{0x01, 6, nobody}, {0x02, 4, 1234}, {0x04, 4, nobody}, {0x10, 4, nobody}, {0x20, 0, nobody}}};
  constexpr std::uint32_t version = 2;
  std::string list(reinterpret_cast<const char*>(&version), sizeof version);
  return list.append(reinterpret_cast<const char*>(entries.data()), sizeof entries);
}

/// An extended attribute of a file; nothing where it has none of that name.
inline std::optional<std::string> AttributeOf(const std::filesystem::path& file, const char* name) {
  std::string value(4096, '\0');
  const ssize_t length = ::getxattr(file.c_str(), name, value.data(), value.size());
  if (length < 0) return std::nullopt;
  value.resize(static_cast<std::size_t>(length));
  return value;
}

inline void GiveAttribute(const std::filesystem::path& file, const char* name, const std::string& value) {
  if (::setxattr(file.c_str(), name, value.data(), value.size(), 0) != 0) {
    throw std::runtime_error(std::string("no attribute ") + name);
  }
}

inline void GiveSampleAccessList(const std::filesystem::path& file) {
  GiveAttribute(file, AccessListName, SampleAccessList());
}

}  // namespace plexel

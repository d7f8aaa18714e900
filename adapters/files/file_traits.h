#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace plexel {

/// What a file has besides its content and its permissions.
struct FileTrait {
  enum class Kind : std::uint8_t { Owner, Group, AccessList, Attribute };

  Kind kind = Kind::Attribute;
  std::string name;  ///< of the owner, the group or the extended attribute; empty for an access list
  bool operator==(const FileTrait&) const = default;
};
using FileTraits = std::vector<FileTrait>;

/// Gives a new file, open for writing, what another has: owner, group, permissions, access list and extended
/// attributes, as far as the user may; what he may not give is added to `lost`. Where the group or the access list is
/// lost, nobody gets rights that he has not as anyone. Attributes that tell of the content, such as signatures, are not
/// given. 0 or the system's error number; ENOMEM where memory is short.
///
/// On Windows replacing gives all but the owner, who is looked at here alone.
int GiveTraits(const std::filesystem::path& model, const std::filesystem::path& file, int handle, FileTraits& lost);

}  // namespace plexel

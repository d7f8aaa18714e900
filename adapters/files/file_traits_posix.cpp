#include "files/file_traits.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <new>
#include <string_view>

namespace plexel {

namespace {

constexpr const char* AccessListName = "system.posix_acl_access";
/// What the system keeps its own under; all that users meet of it are access lists, of one kind or another.
constexpr std::string_view SystemsOwn = "system.";
/// These tell of the content.
constexpr std::array<std::string_view, 3> OfTheContent = {"security.capability", "security.evm", "security.ima"};
/// Neither the names of all attributes nor the value of one are longer.
constexpr std::size_t LongestAttribute = std::size_t{64} << 10U;

/// Whether the user, or whatever keeps the file, may not have it so.
bool IsRefusal(int error) { return error == EPERM || error == EACCES || error == ENOTSUP || error == EINVAL; }

FileTrait Owner(uid_t user) {
  std::array<char, 4096> room{};
  passwd entry{}, *found = nullptr;
  const bool known = ::getpwuid_r(user, &entry, room.data(), room.size(), &found) == 0 && found != nullptr;
  return {FileTrait::Kind::Owner, known ? entry.pw_name : std::to_string(user)};
}

FileTrait Group(gid_t group) {
  std::array<char, 4096> room{};
  struct group entry{}, *found = nullptr;
  const bool known = ::getgrgid_r(group, &entry, room.data(), room.size(), &found) == 0 && found != nullptr;
  return {FileTrait::Kind::Group, known ? entry.gr_name : std::to_string(group)};
}

FileTrait Attribute(const std::string& name) {
  if (name.starts_with(SystemsOwn)) return {FileTrait::Kind::AccessList, {}};
  return {FileTrait::Kind::Attribute, name};
}

/// Both where the user may, else the group.
int GiveOwner(const struct stat& model, int handle, FileTraits& lost) {
  struct stat own{};
  if (::fstat(handle, &own) != 0) return errno;
  if (own.st_uid == model.st_uid && own.st_gid == model.st_gid) return 0;
  if (::fchown(handle, model.st_uid, model.st_gid) == 0) return 0;
  if (!IsRefusal(errno)) return errno;
  if (own.st_uid != model.st_uid) lost.push_back(Owner(model.st_uid));
  if (own.st_gid == model.st_gid || ::fchown(handle, static_cast<uid_t>(-1), model.st_gid) == 0) return 0;
  if (!IsRefusal(errno)) return errno;
  lost.push_back(Group(model.st_gid));
  return 0;
}

int NamesOfAttributes(const char* file, std::vector<std::string>& names) {
  std::string room(LongestAttribute, '\0');
  const ssize_t length = ::listxattr(file, room.data(), room.size());
  if (length < 0) return errno == ENOTSUP ? 0 : errno;
  room.resize(static_cast<std::size_t>(length));
  for (std::size_t start = 0; start < room.size(); start += names.back().size() + 1) names.emplace_back(&room[start]);
  return 0;
}

int GiveAttribute(const char* model, const std::string& name, int handle, FileTraits& lost) {
  std::string value(LongestAttribute, '\0'), own = value;
  const ssize_t length = ::getxattr(model, name.c_str(), value.data(), value.size());
  if (length < 0 && errno == ENODATA) return 0;  // it went in the meantime
  int error = length < 0 ? errno : 0;
  if (error == 0) {
    value.resize(static_cast<std::size_t>(length));
    const ssize_t ownLength = ::fgetxattr(handle, name.c_str(), own.data(), own.size());
    own.resize(static_cast<std::size_t>(std::max<ssize_t>(ownLength, 0)));
    if (ownLength >= 0 && own == value) return 0;
    error = ::fsetxattr(handle, name.c_str(), value.data(), value.size(), 0) == 0 ? 0 : errno;
  }
  if (!IsRefusal(error)) return error;
  lost.push_back(Attribute(name));
  return 0;
}

/// A new file may have got an access list from its directory.
int TakeAccessList(int handle, FileTraits& lost) {
  if (::fgetxattr(handle, AccessListName, nullptr, 0) < 0) return errno == ENODATA || errno == ENOTSUP ? 0 : errno;
  if (::fremovexattr(handle, AccessListName) == 0) return 0;
  if (!IsRefusal(errno)) return errno;
  lost.push_back(Attribute(AccessListName));
  return 0;
}

int GiveAttributes(const char* model, int handle, FileTraits& lost) {
  std::vector<std::string> names;
  int error = NamesOfAttributes(model, names);
  if (error == 0 && std::find(names.begin(), names.end(), AccessListName) == names.end()) {
    error = TakeAccessList(handle, lost);
  }
  for (const std::string& name : names) {
    if (std::find(OfTheContent.begin(), OfTheContent.end(), name) != OfTheContent.end()) continue;
    if (error == 0) error = GiveAttribute(model, name, handle, lost);
  }
  return error;
}

/// The permissions of the model, without those that would be given to others than there.
mode_t ModeFor(mode_t mode, const FileTraits& lost) {
  const auto isLost = [&lost](FileTrait::Kind kind) {
    return std::any_of(lost.begin(), lost.end(), [kind](const FileTrait& trait) { return trait.kind == kind; });
  };
  const bool owner = isLost(FileTrait::Kind::Owner), group = isLost(FileTrait::Kind::Group);
  if (group || isLost(FileTrait::Kind::AccessList)) mode &= ~(S_IRWXG & ~((mode & S_IRWXO) << 3U));
  if (owner || group) mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
  return mode;
}

}  // namespace

int GiveTraits(const std::filesystem::path& model, const std::filesystem::path&, int handle, FileTraits& lost) try {
  struct stat status{}, own{};
  if (::stat(model.c_str(), &status) != 0) return errno;
  int error = GiveOwner(status, handle, lost);
  if (error == 0) error = GiveAttributes(model.c_str(), handle, lost);
  if (error == 0 && ::fstat(handle, &own) != 0) error = errno;
  const mode_t mode = ModeFor(status.st_mode & 07777U, lost);
  if (error == 0 && (own.st_mode & 07777U) != mode && ::fchmod(handle, mode) != 0) error = errno;
  return error;
} catch (const std::bad_alloc&) {
  return ENOMEM;
}

}  // namespace plexel

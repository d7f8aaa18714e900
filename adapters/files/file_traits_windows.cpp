#include "files/file_traits.h"

#include <aclapi.h>
#include <windows.h>

#include <array>
#include <cerrno>
#include <new>

#include "files/path_text.h"

namespace plexel {

namespace {

/// The owner of a file, as far as the system tells.
class OwnerOf {
 public:
  explicit OwnerOf(const std::filesystem::path& file) {
    GetNamedSecurityInfoW(file.c_str(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner_, nullptr, nullptr, nullptr,
                          &descriptor_);
  }
  ~OwnerOf() { LocalFree(descriptor_); }
  OwnerOf(const OwnerOf&) = delete;
  OwnerOf& operator=(const OwnerOf&) = delete;

  PSID Get() const { return owner_; }
  std::string Name() const {
    std::array<wchar_t, 256> name{}, domain{};
    DWORD nameSize = name.size(), domainSize = domain.size();
    SID_NAME_USE use = SidTypeUser;
    const bool known =
        LookupAccountSidW(nullptr, owner_, name.data(), &nameSize, domain.data(), &domainSize, &use) != FALSE;
    return known ? TextOf(name.data()) : std::string("?");
  }

 private:
  PSECURITY_DESCRIPTOR descriptor_ = nullptr;
  PSID owner_ = nullptr;
};

}  // namespace

int GiveTraits(const std::filesystem::path& model, const std::filesystem::path& file, int, FileTraits& lost) try {
  const OwnerOf wanted(model), own(file);
  if (wanted.Get() == nullptr || own.Get() == nullptr || EqualSid(wanted.Get(), own.Get()) != FALSE) return 0;
  // Giving a file away takes a privilege that programs have not switched on; it is the user's then.
  lost.push_back({FileTrait::Kind::Owner, wanted.Name()});
  return 0;
} catch (const std::bad_alloc&) {
  return ENOMEM;
}

}  // namespace plexel

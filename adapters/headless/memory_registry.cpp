#include "headless/memory_registry.h"

#include <algorithm>

namespace plexel {

namespace {
constexpr std::int32_t Success = 0, NotFound = 2, AccessDenied = 5, InvalidHandle = 6;
constexpr std::intptr_t KeyHandle = 0x100;
}  // namespace

std::int32_t MemoryRegistry::OpenKey(std::uint32_t root, std::string_view path, std::int32_t, std::int32_t,
                                     std::intptr_t& key) {
  if (faults_.Trips(Fault::Registry)) return NotFound;
  if (root != CurrentUser || path != path_) return NotFound;
  key = KeyHandle;
  ++openKeys_;
  return Success;
}

std::int32_t MemoryRegistry::SetValue(std::intptr_t key, std::string_view name, std::int32_t, std::int32_t,
                                      std::string_view text, std::int32_t length) {
  if (faults_.Trips(Fault::Registry)) return AccessDenied;
  if (key != KeyHandle || openKeys_ == 0) return InvalidHandle;
  const std::string value(text.substr(0, static_cast<std::size_t>(std::max(length, 0))));
  const auto found =
      std::find_if(values_.begin(), values_.end(), [name](const auto& one) { return one.first == name; });
  if (found == values_.end()) {
    values_.emplace_back(name, value);
  } else {
    found->second = value;
  }
  return Success;
}

std::int32_t MemoryRegistry::CloseKey(std::intptr_t key) {
  if (key != KeyHandle || openKeys_ == 0) return InvalidHandle;
  --openKeys_;
  return Success;
}

const std::string* MemoryRegistry::Find(std::string_view name) const {
  const auto found =
      std::find_if(values_.begin(), values_.end(), [name](const auto& one) { return one.first == name; });
  return found == values_.end() ? nullptr : &found->second;
}

}  // namespace plexel

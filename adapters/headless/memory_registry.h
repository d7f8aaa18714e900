#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "headless/faults.h"
#include "platform/system.h"

namespace plexel {

/// A user's registry in memory: the component's own key, which exists from the start, with its text values in the order
/// in which they were first stored.
class MemoryRegistry : public Registry {
 public:
  /// Names and texts in their order.
  using Values = std::vector<std::pair<std::string, std::string>>;

  /// A registry with a key of a path. The faults outlive it.
  MemoryRegistry(Faults& faults, std::string path) : faults_(faults), path_(std::move(path)) {}
  std::int32_t OpenKey(std::uint32_t root, std::string_view path, std::int32_t options, std::int32_t access,
                       std::intptr_t& key) override;
  std::int32_t SetValue(std::intptr_t key, std::string_view name, std::int32_t reserved, std::int32_t type,
                        std::string_view text, std::int32_t length) override;
  std::int32_t CloseKey(std::intptr_t key) override;

  /// What was stored.
  const Values& Stored() const { return values_; }
  /// The value of a name, or null.
  const std::string* Find(std::string_view name) const;
  /// How many keys have not been closed.
  int OpenKeys() const { return openKeys_; }

 private:
  Faults& faults_;
  std::string path_;
  Values values_;
  int openKeys_ = 0;
};

}  // namespace plexel

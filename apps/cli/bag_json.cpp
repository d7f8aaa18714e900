#include "cli/bag_json.h"

#include <algorithm>
#include <cstdint>

#include "platform/failure.h"

namespace plexel {

namespace {

BagValue NumberOf(const Json& value) {
  const auto number = value.get<double>();
  if (value.is_number_integer() && number >= INT32_MIN && number <= INT32_MAX) return value.get<std::int32_t>();
  return number;
}

}  // namespace

ScriptBag::ScriptBag(const Json& values) {
  for (const auto& [key, value] : values.items()) {
    if (value.is_number()) {
      bag_.Store(key, NumberOf(value));
    } else if (value.is_boolean()) {
      bag_.Store(key, Boolean(value.get<bool>()));
    } else if (value.is_string()) {
      bag_.Store(key, value.get<std::string>());
    } else {
      unreadable_.push_back(key);
    }
  }
}

const BagValue* ScriptBag::Find(std::string_view key) const {
  if (std::find(unreadable_.begin(), unreadable_.end(), key) != unreadable_.end()) {
    throw Failure(FailureKind::Conversion, "the value of " + std::string(key) + " does not convert");
  }
  return bag_.Find(key);
}

void ScriptBag::Store(std::string_view key, BagValue value) {
  std::erase(unreadable_, key);
  bag_.Store(key, std::move(value));
}

void ScriptBag::Remove(std::string_view key) {
  std::erase(unreadable_, key);
  bag_.Remove(key);
}

}  // namespace plexel

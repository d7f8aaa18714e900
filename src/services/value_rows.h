#pragma once

#include <functional>

namespace plexel {

/// Whether the rows of a table have the values 0, 1, 2 and so on, so that a value is the place of its row.
template <typename Rows, typename Value>
consteval bool InOrderOfValues(const Rows& rows, Value value) {
  int place = 0;
  for (const auto& row : rows) {
    if (static_cast<int>(std::invoke(value, row)) != place++) return false;
  }
  return true;
}

}  // namespace plexel

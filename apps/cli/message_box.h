#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/interaction.h"

namespace plexel {

/// A message box that waits for its answer.
struct MessageBox {
  std::string prompt, title;
  std::int32_t style = 0;
  std::size_t formsBelow = 0;  ///< forms shown when it opened
  std::optional<MessageAnswer> answer;

  /// The names of its buttons, in their order.
  std::vector<std::string> Buttons() const;
  /// Presses a button by its name, or the close box. CommandError for a button that the box lacks.
  void Answer(const std::string& button);
  void Dismiss();
};

}  // namespace plexel

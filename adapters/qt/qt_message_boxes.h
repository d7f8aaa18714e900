#pragma once

#include <QString>
#include <functional>

#include "platform/interaction.h"

namespace plexel {

/// Message boxes of the desktop over the active window.
class QtMessageBoxes : public MessageBoxes {
 public:
  MessageAnswer Show(std::string_view prompt, std::int32_t style, std::string_view title) override;

  /// The text of an answer's button in the user's language; without it the toolkit's.
  std::function<QString(MessageAnswer)> buttonText;
};

}  // namespace plexel

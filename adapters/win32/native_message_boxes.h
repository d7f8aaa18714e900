#pragma once

#include "platform/interaction.h"

namespace plexel {

/// The system's message boxes, over the window of this thread that is in front.
class NativeMessageBoxes : public MessageBoxes {
 public:
  MessageAnswer Show(std::string_view prompt, std::int32_t style, std::string_view title) override;
};

}  // namespace plexel

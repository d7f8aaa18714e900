#pragma once

#include <functional>
#include <string>
#include <vector>

#include "headless/faults.h"
#include "platform/interaction.h"

namespace plexel {

/// Keeps the messages and answers as `onShow` tells; without it as a user who dismisses every box: OK, or Cancel where
/// the box has it.
class HeadlessMessageBoxes : public MessageBoxes {
 public:
  /// What a box said.
  struct Message {
    /// The text, the style and the title.
    std::string prompt;
    std::int32_t style = 0;
    std::string title;
  };
  /// The faults outlive it.
  explicit HeadlessMessageBoxes(Faults& faults) : faults_(faults) {}
  MessageAnswer Show(std::string_view prompt, std::int32_t style, std::string_view title) override;

  /// The answers that a style offers, in the order of its buttons.
  static const std::vector<MessageAnswer>& Buttons(std::int32_t style);
  /// What the close box of a message box stands for.
  static MessageAnswer Dismissal(std::int32_t style) { return Buttons(style).back(); }
  /// The messages so far.
  const std::vector<Message>& Shown() const { return shown_; }

  /// Gives the answer to a box.
  std::function<MessageAnswer(const std::string& prompt, std::int32_t style, const std::string& title)> onShow;

 private:
  Faults& faults_;
  std::vector<Message> shown_;
};

}  // namespace plexel

#include "headless/headless_message_boxes.h"

namespace plexel {

MessageAnswer HeadlessMessageBoxes::Show(std::string_view prompt, std::int32_t style, std::string_view title) {
  faults_.Check(Fault::Messages);
  shown_.push_back({std::string(prompt), style, std::string(title)});
  const Message message = shown_.back();
  return onShow ? onShow(message.prompt, message.style, message.title) : Dismissal(style);
}

const std::vector<MessageAnswer>& HeadlessMessageBoxes::Buttons(std::int32_t style) {
  constexpr std::int32_t ButtonBits = 0xF;
  static const std::vector<MessageAnswer> okOnly = {MessageAnswer::OK};
  static const std::vector<MessageAnswer> yesNoCancel = {MessageAnswer::Yes, MessageAnswer::No, MessageAnswer::Cancel};
  return (style & ButtonBits) == StyleYesNoCancel ? yesNoCancel : okOnly;
}

}  // namespace plexel

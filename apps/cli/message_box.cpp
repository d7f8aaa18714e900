#include "cli/message_box.h"

#include <algorithm>
#include <array>

#include "cli/command_error.h"
#include "files/text_lines.h"
#include "headless/headless_message_boxes.h"

namespace plexel {

namespace {

struct ButtonName {
  MessageAnswer answer;
  const char* name;
};

constexpr auto buttonNames = std::to_array<ButtonName>({{MessageAnswer::OK, "OK"},
                                                        {MessageAnswer::Cancel, "Cancel"},
                                                        {MessageAnswer::Yes, "Yes"},
                                                        {MessageAnswer::No, "No"}});

/// Every answer has its row.
const char* NameOf(MessageAnswer answer) { return std::ranges::find(buttonNames, answer, &ButtonName::answer)->name; }

}  // namespace

std::vector<std::string> MessageBox::Buttons() const {
  std::vector<std::string> names;
  for (const MessageAnswer button : HeadlessMessageBoxes::Buttons(style)) names.emplace_back(NameOf(button));
  return names;
}

void MessageBox::Answer(const std::string& button) {
  for (const MessageAnswer offered : HeadlessMessageBoxes::Buttons(style)) {
    if (button != NameOf(offered)) continue;
    answer = offered;
    return;
  }
  throw CommandError("the message box has no button " + Excerpt(button));
}

void MessageBox::Dismiss() { answer = HeadlessMessageBoxes::Dismissal(style); }

}  // namespace plexel

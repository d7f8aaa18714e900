#include "qt/qt_message_boxes.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <array>

#include "platform/clean_up.h"
#include "qt/plain_box.h"
#include "qt/units.h"

namespace plexel {

namespace {

struct AnswerButton {
  MessageAnswer answer;
  QMessageBox::StandardButton button;
  bool inYesNoCancel;
};

constexpr std::array answerButtons = {AnswerButton{MessageAnswer::OK, QMessageBox::Ok, false},
                                      AnswerButton{MessageAnswer::Yes, QMessageBox::Yes, true},
                                      AnswerButton{MessageAnswer::No, QMessageBox::No, true},
                                      AnswerButton{MessageAnswer::Cancel, QMessageBox::Cancel, true}};
constexpr std::int32_t ButtonsMask = 0x0F;

}  // namespace

MessageAnswer QtMessageBoxes::Show(std::string_view prompt, std::int32_t style, std::string_view title) {
  // A window that goes takes its box along; what is asked then is not answered.
  const QPointer<PlainBox> shown(new PlainBox(QApplication::activeWindow()));
  const AtEnd gone([&shown] { delete shown.data(); });
  PlainBox& box = *shown;
  box.setText(ToQt(prompt));
  box.setWindowTitle(ToQt(title));
  box.setIcon((style & MessageBoxes::StyleCritical) != 0 ? QMessageBox::Critical : QMessageBox::Information);
  const bool asks = (style & ButtonsMask) == MessageBoxes::StyleYesNoCancel;
  for (const AnswerButton& one : answerButtons) {
    if (one.inYesNoCancel != asks) continue;
    QPushButton* const button = box.addButton(one.button);
    if (buttonText) button->setText(buttonText(one.answer));
  }
  const int pressed = box.exec();
  for (const AnswerButton& one : answerButtons) {
    if (one.button == pressed) return one.answer;
  }
  return asks ? MessageAnswer::Cancel : MessageAnswer::OK;
}

}  // namespace plexel

#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <string>

#include "platform/platform.h"
#include "qt/form_note.h"
#include "qt/form_subject.h"

class QWidget;

namespace plexel {

class DesktopKeyboard;

/// The desktop as the component sees it: dialogs are native windows, and the keys are those of the X server, or where
/// there is none those that the desktop passes on. The application object must exist before and outlive it.
class QtPlatform : public Platform {
 public:
  /// Where positions are stored and who shows help; both must outlive the platform.
  QtPlatform(Registry& registry, HelpViewer& help);
  ~QtPlatform() override;

  KeyboardHooks& Hooks() override;
  KeyState& Keys() override;
  KeyboardLayout& Layout() override;
  Registry& UserRegistry() override;
  Screen& TheScreen() override;
  OsVersion& Version() override;
  HelpViewer& Help() override;
  ModalLoop& Modal() override;
  MessageBoxes& Messages() override;
  EventPump& Events() override;

  /// Tells which widget stands for a window of the host, so that dialogs open over the widget's window.
  void Register(const Window& window, QWidget& widget);
  /// Undoes Register; nothing happens for a window that is not registered.
  void Forget(const Window& window);
  /// Tells the user, and the log, of a failure that came out of one of his acts.
  void Report(const std::string& what);
  /// Shows the text of such a failure; without it the log alone tells.
  void OnFailure(std::function<void(const std::string& what)> show);
  /// What the host says under an open form, asked behind each of the user's acts; without it nothing.
  void Notes(std::function<FormNote(Form& form)> say);
  /// Tells what a form is about that opens, for the title and the place of its window; without it nothing.
  void Subjects(std::function<FormSubject(Form& form)> tell);
  /// Gives the buttons of message boxes their texts in the user's language; without it they have the toolkit's.
  void ButtonTexts(std::function<QString(MessageAnswer)> text);
  /// Whether capture works as on an X server: every key arrives, and the desktop's task keys can be held back.
  bool HasFullCapture() const;

 protected:
  /// The same with another keyboard of the desktop; with null keys come as the toolkit tells them.
  QtPlatform(Registry& registry, HelpViewer& help, std::unique_ptr<DesktopKeyboard> keyboard);
  /// The ports, which derived platforms may reach.
  struct Ports;
  /// The ports.
  Ports& Inside() { return *ports_; }

 private:
  std::unique_ptr<Ports> ports_;
};

}  // namespace plexel

#include "qt/qt_platform.h"

#include <utility>

#include "qt/desktop_capture.h"
#include "qt/qt_ports.h"
#include "qt/x_connection.h"

namespace plexel {

QtPlatform::QtPlatform(Registry& registry, HelpViewer& help)
    : QtPlatform(registry, help, KeyboardOfXServer(XConnection())) {}
QtPlatform::QtPlatform(Registry& registry, HelpViewer& help, std::unique_ptr<DesktopKeyboard> keyboard)
    : ports_(std::make_unique<Ports>(registry, help, std::move(keyboard))) {}
QtPlatform::~QtPlatform() = default;

KeyboardHooks& QtPlatform::Hooks() { return ports_->hooks; }
KeyState& QtPlatform::Keys() { return ports_->keys; }
KeyboardLayout& QtPlatform::Layout() { return ports_->keys.Layout(); }
Registry& QtPlatform::UserRegistry() { return ports_->registry; }
Screen& QtPlatform::TheScreen() { return ports_->screen; }
OsVersion& QtPlatform::Version() { return ports_->version; }
HelpViewer& QtPlatform::Help() { return ports_->help; }
ModalLoop& QtPlatform::Modal() { return ports_->modal; }
MessageBoxes& QtPlatform::Messages() { return ports_->messages; }
EventPump& QtPlatform::Events() { return ports_->events; }

void QtPlatform::Register(const Window& window, QWidget& widget) { ports_->modal.Register(window, widget); }
void QtPlatform::Forget(const Window& window) { ports_->modal.Forget(window); }
void QtPlatform::Report(const std::string& what) { ports_->modal.Report(what); }
void QtPlatform::OnFailure(std::function<void(const std::string&)> show) { ports_->modal.onFailure = std::move(show); }
void QtPlatform::ButtonTexts(std::function<QString(MessageAnswer)> text) {
  ports_->messages.buttonText = std::move(text);
}
void QtPlatform::Notes(std::function<FormNote(Form&)> say) { ports_->modal.note = std::move(say); }
void QtPlatform::Subjects(std::function<FormSubject(Form&)> tell) { ports_->modal.subject = std::move(tell); }
bool QtPlatform::HasFullCapture() const { return ports_->capture != nullptr; }

}  // namespace plexel

#include "editor/help_key.h"

#include <QAction>
#include <QDialog>
#include <QVariant>

#include "qt/help_window.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

constexpr const char* TopicProperty = "helpTopic";

}  // namespace

void SetHelpTopic(QWidget& widget, std::int32_t topic) { widget.setProperty(TopicProperty, topic); }

std::int32_t HelpTopicOf(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (const QVariant topic = widget->property(TopicProperty); topic.isValid()) return topic.toInt();
  }
  return HelpWindow::Contents;
}

void AddHelpKey(QDialog& dialog, std::int32_t topic) {
  SetHelpTopic(dialog, topic);
  auto* const action = new QAction(&dialog);
  action->setShortcut(QKeySequence::HelpContents);
  dialog.addAction(action);
  QObject::connect(action, &QAction::triggered, &dialog, [topic] { ShowHelpTopic(0, topic); });
}

}  // namespace plexel

#include "qt/element_accessible.h"

#include <QAccessibleWidget>
#include <QTimer>

#include "qt/element_widget.h"

namespace plexel {

namespace {

class AccessibleElement : public QAccessibleWidget {
 public:
  explicit AccessibleElement(ElementWidget& widget) : QAccessibleWidget(&widget, QAccessible::Button) {}

  QString text(QAccessible::Text kind) const override {
    const auto& element = static_cast<const ElementWidget&>(*widget());
    QString own = QAccessibleWidget::text(kind);
    if (!own.isEmpty()) return own;
    if (kind == QAccessible::Name) return element.Legend().isEmpty() ? element.objectName() : element.Legend();
    return kind == QAccessible::Description ? element.Summary() : QString();
  }

  QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    // The dialog would hold up whoever asks until it has closed.
    auto* const element = static_cast<ElementWidget*>(widget());
    if (element->isEnabled()) QTimer::singleShot(0, element, [element] { element->OpenConfigurationDialog(); });
  }
};

QAccessibleInterface* AccessibleOf(const QString&, QObject* object) {
  auto* const widget = qobject_cast<ElementWidget*>(object);
  return widget == nullptr ? nullptr : new AccessibleElement(*widget);
}

}  // namespace

void MakeElementsAccessible() {
  static const bool installed = (QAccessible::installFactory(AccessibleOf), true);
  static_cast<void>(installed);
}

}  // namespace plexel

#pragma once

#include <QDesignerCustomWidgetInterface>
#include <QObject>

namespace plexel {

/// Shows the element widget in the widget box of Qt Designer, and makes it in forms that are loaded at run time. In a
/// program that has no QtComponent, it makes one with the installed data, which ends with the application object.
class DesignerPlugin : public QObject, public QDesignerCustomWidgetInterface {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QDesignerCustomWidgetInterface_iid)
  Q_INTERFACES(QDesignerCustomWidgetInterface)

 public:
  /// Null, with a warning that says why, when the component's data cannot be read.
  QWidget* createWidget(QWidget* parent) override;
  QString name() const override { return "plexel::ElementWidget"; }
  QString includeFile() const override { return "qt/element_widget.h"; }
  QString group() const override { return "Plexel"; }
  QString toolTip() const override { return "A key or LED of an operator panel"; }
  QString whatsThis() const override { return toolTip(); }
  QIcon icon() const override;
  bool isContainer() const override { return false; }
  bool isInitialized() const override { return initialized_; }
  void initialize(QDesignerFormEditorInterface*) override { initialized_ = true; }
  /// A key with LED at zoom 100.
  QString domXml() const override;

 private:
  bool initialized_ = false;
};

}  // namespace plexel

#include "qt/designer/designer_plugin.h"

#include <QCoreApplication>
#include <QIcon>
#include <memory>

#include "qt/element_widget.h"
#include "qt/pictures.h"
#include "qt/qt_component.h"

namespace plexel {

namespace {

std::unique_ptr<QtComponent>& OwnComponent() {
  static std::unique_ptr<QtComponent> component;
  return component;
}

void HaveAComponent() {
  if (QtComponent::Exists()) return;
  OwnComponent() = std::make_unique<QtComponent>();
  qAddPostRoutine([] { OwnComponent().reset(); });
}

}  // namespace

QWidget* DesignerPlugin::createWidget(QWidget* parent) {
  try {
    HaveAComponent();
    return new ElementWidget(parent);
  } catch (const std::exception& failure) {
    qWarning("plexel::ElementWidget: %s", failure.what());
    return nullptr;
  }
}

QIcon DesignerPlugin::icon() const { return PicturePixmap("plexel", QSize(22, 22), 1); }

QString DesignerPlugin::domXml() const {
  return R"(<ui language="c++">
 <widget class="plexel::ElementWidget" name="element">
  <property name="SizeY"><number>54</number></property>
  <property name="SizeX"><number>56</number></property>
  <property name="ElementType"><enum>plexel::ElementWidget::RectLed</enum></property>
  <property name="ZoomFactor"><number>100</number></property>
 </widget>
</ui>)";
}

}  // namespace plexel

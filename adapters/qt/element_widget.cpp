#include "qt/element_widget.h"

#include <QApplication>
#include <QPointer>
#include <algorithm>

#include "element/ctlPlexelBaseElement.h"
#include "files/panel_file.h"
#include "qt/element_accessible.h"
#include "qt/qt_component.h"
#include "qt/qt_platform.h"
#include "qt/units.h"

namespace plexel {

namespace {

void Report(const std::string& what) {
  if (!QtComponent::Exists()) return qWarning("%s", what.c_str());
  QtComponent::Instance().Desktop().Report(what);
}

}  // namespace

/// The element's container, which passes on what it hears.
class ElementWidget::Container : public ElementHost {
 public:
  explicit Container(ElementWidget& widget) : widget_(widget) {}

  void PropertyChanged(ctlPlexelBaseElement&, const Notice&) override { widget_.ShowSurfaceSoon(); }
  Boolean CheckIfLedIsAlreadyDefined(std::int32_t& LEDType, std::int32_t& Layer) override {
    const auto function = static_cast<LedFunction>(LEDType);
    const bool defined =
        widget_.ledIsDefined ? widget_.ledIsDefined(function, Layer) : widget_.LedIsDefinedInWindow(function, Layer);
    return defined ? True : False;
  }
  void DirectInputStatusChanged(ctlPlexelBaseElement&, Boolean& bDirectInputStatus) override {
    Q_EMIT widget_.DirectInputStatusChanged(IsTrue(bDirectInputStatus));
  }
  void SendKeyDefinition(ctlPlexelBaseElement&, KeyDefinition& definition) override {
    widget_.ShowSurfaceSoon();
    Q_EMIT widget_.SendKeyDefinition(definition);
  }
  void MouseClicked(ctlPlexelBaseElement&, std::int16_t& Button, std::int16_t& Shift, float& x, float& Y) override {
    Q_EMIT widget_.MouseClicked(Button, Shift, x, Y);
  }
  void MouseDblClicked(ctlPlexelBaseElement&) override { Q_EMIT widget_.MouseDblClicked(); }
  void ProjectModified(ctlPlexelBaseElement&) override { Q_EMIT widget_.ProjectModified(); }

 private:
  ElementWidget& widget_;
};

/// The widget's window as the owner of dialogs, whichever it is by then.
class ElementWidget::OwnerWindow : public HostObject, public Window {
 public:
  Window* AsForm() override { return this; }
  std::string WindowName() const override { return "ElementWidget"; }
};

ElementWidget::ElementWidget(QWidget* parent)
    : QWidget(parent), container_(std::make_unique<Container>(*this)), ownerWindow_(std::make_shared<OwnerWindow>()) {
  QtComponent& component = QtComponent::Instance();
  MakeElementsAccessible();
  element_ = component.Create(std::string(), *container_);
  component.Desktop().Register(*ownerWindow_, *this);
  element_->ParentWindow(ownerWindow_);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setCursor(Qt::PointingHandCursor);
  // In a window without the keys the focus moves without an event for the widget that loses it.
  connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, const QWidget* now) {
    if (now != nullptr && now != this && now->window() == window()) LoseFocus();
  });
  ShowSurface();
}

ElementWidget::~ElementWidget() {
  disconnect(qApp, nullptr, this, nullptr);
  element_->UserControl_Terminate();
  element_->Detach();
  if (QtComponent::Exists()) QtComponent::Instance().Desktop().Forget(*ownerWindow_);
}

void ElementWidget::Run(const std::function<void(ctlPlexelBaseElement&)>& act) {
  const auto element = element_;
  const QPointer<ElementWidget> self(this);
  try {
    act(*element);
  } catch (const std::exception& failure) {
    Report(failure.what());
  } catch (...) {
    Report("a handler has thrown what is no std::exception");
  }
  if (self) ShowSurface();
}

void ElementWidget::WriteProperties(PropertyBag& bag) const { element_->UserControl_WriteProperties(bag); }

void ElementWidget::ReadProperties(const PropertyBag& bag) {
  Run([&bag, this](ctlPlexelBaseElement& element) {
    udtTactisBaseElement_ScanCodeInfo record = element.TactisBaseElementScanCodeBuffer();
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      *PressBuffer(record, layer) = *ReleaseBuffer(record, layer) = InitialCodes();
    }
    element.TactisBaseElementScanCodeBuffer(record);
    element.UserControl_ReadProperties(bag);
    element.FocusVisible(focused_ ? True : False);
    element.UpdateFocus();
  });
}

void ElementWidget::FaceVisible(bool value) {
  faceVisible_ = value;
  update();
}

void ElementWidget::Legend(const QString& value) {
  legend_ = value;
  update();
}

void ElementWidget::Face(std::vector<PanelPart> parts) {
  face_ = std::move(parts);
  update();
}

bool ElementWidget::LedIsDefinedInWindow(LedFunction function, int layer) const {
  if (layer < 1 || layer > LayerCount) return false;
  const auto shows = [=](const ElementWidget* one) { return one->element_->LEDTypeLayer(layer) == int{function}; };
  const QList<ElementWidget*> others = window()->findChildren<ElementWidget*>();
  return shows(this) || std::any_of(others.begin(), others.end(), shows);
}

QString ElementWidget::Summary() const {
  QStringList layers;
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    const QString press = ToQt(element_->PressKeyDefLayer(layer)), release = ToQt(element_->ReleaseKeyDefLayer(layer));
    if (press.isEmpty() && release.isEmpty()) continue;
    layers.append(QString("%1: %2").arg(layer).arg(release.isEmpty() ? press : press + " / " + release));
  }
  return layers.join('\n');
}

void ElementWidget::OpenPropertiesDialog() { Run(&ctlPlexelBaseElement::OpenPropertiesDialog); }
void ElementWidget::OpenConfigurationDialog() { Run(&ctlPlexelBaseElement::OpenConfigurationDialog); }
void ElementWidget::UpdateFocus() { Run(&ctlPlexelBaseElement::UpdateFocus); }
void ElementWidget::Refresh() { Run(&ctlPlexelBaseElement::Refresh); }
void ElementWidget::ShowDefinedObject(bool bVisible) {
  Run([=](ctlPlexelBaseElement& element) { element.ShowDefinedObject(bVisible ? True : False); });
}

}  // namespace plexel

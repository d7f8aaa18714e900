#pragma once

#include <QColor>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "element/element_host.h"
#include "services/element_types.h"

namespace plexel {

class ctlPlexelBaseElement;
class PropertyBag;
struct PanelPart;

/// An element as a widget, for hosts made with this toolkit, in code or in a form file. A QtComponent must stand before
/// the first one is made: without one the constructor throws std::logic_error, and there is no widget.
///
/// The widget is the element's container. The focus of the keyboard is the element's focus, and stays with it while a
/// dialog or another window is in front; Return, clicks and double clicks go to the element. What it opens belongs to
/// the widget's window. The widget is as large as the element's surface: `SizeX` by `SizeY` pixels at `ZoomFactor` 100.
///
/// All properties of the element are properties of the widget, under their own names. They do what the element's do: a
/// new widget is a new element, without kind, sizes and zoom, and shows nothing until it has them. What fails in a
/// property, in an event or in a handler of a signal is handed to QtPlatform::Report; the widget goes on.
class ElementWidget : public QWidget {
  Q_OBJECT
  Q_PROPERTY(double DPIFontScaleFactor READ DPIFontScaleFactor WRITE DPIFontScaleFactor)
  Q_PROPERTY(WizardOption WizardOptions READ WizardOptions WRITE WizardOptions)
  Q_PROPERTY(MarkSize XElementSize READ XElementSize WRITE XElementSize)
  Q_PROPERTY(bool FocusVisible READ FocusVisible WRITE FocusVisible DESIGNABLE false)
  Q_PROPERTY(int FocusWidth READ FocusWidth WRITE FocusWidth)
  Q_PROPERTY(QColor FocusColor READ FocusColor WRITE FocusColor)
  Q_PROPERTY(bool WizardOn READ WizardOn WRITE WizardOn)
  Q_PROPERTY(int DeviceType READ DeviceType WRITE DeviceType)
  Q_PROPERTY(int SizeY READ SizeY WRITE SizeY)
  Q_PROPERTY(int SizeX READ SizeX WRITE SizeX)
  Q_PROPERTY(ElementKind ElementType READ ElementType WRITE ElementType)
  Q_PROPERTY(int ZoomFactor READ ZoomFactor WRITE ZoomFactor)
  Q_PROPERTY(LedFunction LEDTypeLayer1 READ LEDTypeLayer1 WRITE LEDTypeLayer1)
  Q_PROPERTY(LedFunction LEDTypeLayer2 READ LEDTypeLayer2 WRITE LEDTypeLayer2)
  Q_PROPERTY(LedFunction LEDTypeLayer3 READ LEDTypeLayer3 WRITE LEDTypeLayer3)
  Q_PROPERTY(LedFunction LEDTypeLayer4 READ LEDTypeLayer4 WRITE LEDTypeLayer4)
  Q_PROPERTY(QString ReleaseKeyDefLayer1 READ ReleaseKeyDefLayer1 WRITE ReleaseKeyDefLayer1)
  Q_PROPERTY(QString ReleaseKeyDefLayer2 READ ReleaseKeyDefLayer2 WRITE ReleaseKeyDefLayer2)
  Q_PROPERTY(QString ReleaseKeyDefLayer3 READ ReleaseKeyDefLayer3 WRITE ReleaseKeyDefLayer3)
  Q_PROPERTY(QString ReleaseKeyDefLayer4 READ ReleaseKeyDefLayer4 WRITE ReleaseKeyDefLayer4)
  Q_PROPERTY(QString PressKeyDefLayer1 READ PressKeyDefLayer1 WRITE PressKeyDefLayer1)
  Q_PROPERTY(QString PressKeyDefLayer2 READ PressKeyDefLayer2 WRITE PressKeyDefLayer2)
  Q_PROPERTY(QString PressKeyDefLayer3 READ PressKeyDefLayer3 WRITE PressKeyDefLayer3)
  Q_PROPERTY(QString PressKeyDefLayer4 READ PressKeyDefLayer4 WRITE PressKeyDefLayer4)
  Q_PROPERTY(int OriginalPosX READ OriginalPosX WRITE OriginalPosX)
  Q_PROPERTY(int OriginalPosY READ OriginalPosY WRITE OriginalPosY)
  Q_PROPERTY(int HardwareNumberKey READ HardwareNumberKey WRITE HardwareNumberKey)
  Q_PROPERTY(int HardwareNumberKey1 READ HardwareNumberKey1 WRITE HardwareNumberKey1)
  Q_PROPERTY(int HardwareNumberKey2 READ HardwareNumberKey2 WRITE HardwareNumberKey2)
  Q_PROPERTY(int HardwareNumberKey3 READ HardwareNumberKey3 WRITE HardwareNumberKey3)
  Q_PROPERTY(int HardwareNumberKey4 READ HardwareNumberKey4 WRITE HardwareNumberKey4)
  Q_PROPERTY(int HardwareNumberKey5 READ HardwareNumberKey5 WRITE HardwareNumberKey5)
  Q_PROPERTY(int HardwareNumberKey6 READ HardwareNumberKey6 WRITE HardwareNumberKey6)
  Q_PROPERTY(int HardwareNumberKey7 READ HardwareNumberKey7 WRITE HardwareNumberKey7)
  Q_PROPERTY(int HardwareNumberLed READ HardwareNumberLed WRITE HardwareNumberLed)
  Q_PROPERTY(int HardwareNumberButton READ HardwareNumberButton WRITE HardwareNumberButton)
  Q_PROPERTY(bool ShowDefined READ ShowDefined WRITE ShowDefined)
  Q_PROPERTY(QColor KeyDefinedColor READ KeyDefinedColor WRITE KeyDefinedColor)
  Q_PROPERTY(bool ShowX READ ShowX WRITE ShowX)
  Q_PROPERTY(bool VantaEnabled READ VantaEnabled WRITE VantaEnabled)
  Q_PROPERTY(QString TargetSystem READ TargetSystem WRITE TargetSystem)
  Q_PROPERTY(QString ButtonNotes READ ButtonNotes WRITE ButtonNotes)
  Q_PROPERTY(bool ShowXPermanent READ ShowXPermanent WRITE ShowXPermanent)
  Q_PROPERTY(bool FaceVisible READ FaceVisible WRITE FaceVisible)
  Q_PROPERTY(QString Legend READ Legend WRITE Legend)

 public:
  /// The values of the element's enumerations, which stand for them in form files.
  enum ElementKind {
    NoKind = 0,
    Led = plexel::Led,
    Oval = plexel::Oval,
    OvalLed = plexel::OvalLed,
    Rect = plexel::Rect,
    RectLed = plexel::RectLed,
    Key = plexel::Key
  };
  Q_ENUM(ElementKind)
  /// The LED functions.
  enum LedFunction {
    HarddiskLed = plexel::HarddiskLed,
    UserLed = plexel::UserLed,
    TemperatureLed = plexel::TemperatureLed,
    PowerLed = plexel::PowerLed,
    CapsLockLed = plexel::CapsLockLed,
    NumLockLed = plexel::NumLockLed,
    Layer1Led = plexel::Layer1Led,
    Layer2Led = plexel::Layer2Led,
    Layer3Led = plexel::Layer3Led,
    Layer4Led = plexel::Layer4Led,
    PanelLockedLed = plexel::PanelLockedLed,
    ScrollLockLed = plexel::ScrollLockLed,
    AlarmLed = plexel::AlarmLed,
    LedNotEnabled = plexel::LedNotEnabled,
    RunLed = plexel::RunLed
  };
  Q_ENUM(LedFunction)
  /// How an element was defined.
  enum WizardOption {
    NormalKey = plexel::NormalKey,
    TipKey = plexel::TipKey,
    IPCFunction = plexel::IPCFunction,
    WindowsShortCut = plexel::WindowsShortCut,
    ManuallyDefined = plexel::ManuallyDefined
  };
  Q_ENUM(WizardOption)
  /// The sizes of the cross.
  enum MarkSize { XSizeBig = plexel::XSizeBig, XSizeMedium = plexel::XSizeMedium, XSizeSmall = plexel::XSizeSmall };
  Q_ENUM(MarkSize)

  /// A new element. std::logic_error when no QtComponent stands.
  explicit ElementWidget(QWidget* parent = nullptr);
  ~ElementWidget() override;

  /// The element itself, with its record. Marks that its own UpdateFocus or ShowDefinedObject show or hide are drawn
  /// with the next update(); the widget's procedures of these names see to that. Its ParentWindow is the widget's
  /// window until the host sets another.
  ctlPlexelBaseElement& Element() const { return *element_; }

  /// Writes what an element stores into a bag.
  void WriteProperties(PropertyBag& bag) const;
  /// Takes the stored properties over from a bag. Code bytes, which no bag holds, are those of a new element
  /// afterwards, and so is OriginalPosY without an entry. FocusVisible follows the focus.
  void ReadProperties(const PropertyBag& bag);

  /// The property of this name of the element. A whole number outside the range of its type is reported, and nothing is
  /// set.
  double DPIFontScaleFactor() const;
  void DPIFontScaleFactor(double value);
  WizardOption WizardOptions() const;
  void WizardOptions(WizardOption value);
  MarkSize XElementSize() const;
  void XElementSize(MarkSize value);
  bool FocusVisible() const;
  void FocusVisible(bool value);
  int FocusWidth() const;
  void FocusWidth(int value);
  QColor FocusColor() const;
  void FocusColor(const QColor& value);
  bool WizardOn() const;
  void WizardOn(bool value);
  int DeviceType() const;
  void DeviceType(int value);
  int SizeY() const;
  void SizeY(int value);
  int SizeX() const;
  void SizeX(int value);
  ElementKind ElementType() const;
  void ElementType(ElementKind value);
  int ZoomFactor() const;
  void ZoomFactor(int value);
  LedFunction LEDTypeLayer1() const;
  void LEDTypeLayer1(LedFunction value);
  LedFunction LEDTypeLayer2() const;
  void LEDTypeLayer2(LedFunction value);
  LedFunction LEDTypeLayer3() const;
  void LEDTypeLayer3(LedFunction value);
  LedFunction LEDTypeLayer4() const;
  void LEDTypeLayer4(LedFunction value);
  QString ReleaseKeyDefLayer1() const;
  void ReleaseKeyDefLayer1(const QString& value);
  QString ReleaseKeyDefLayer2() const;
  void ReleaseKeyDefLayer2(const QString& value);
  QString ReleaseKeyDefLayer3() const;
  void ReleaseKeyDefLayer3(const QString& value);
  QString ReleaseKeyDefLayer4() const;
  void ReleaseKeyDefLayer4(const QString& value);
  QString PressKeyDefLayer1() const;
  void PressKeyDefLayer1(const QString& value);
  QString PressKeyDefLayer2() const;
  void PressKeyDefLayer2(const QString& value);
  QString PressKeyDefLayer3() const;
  void PressKeyDefLayer3(const QString& value);
  QString PressKeyDefLayer4() const;
  void PressKeyDefLayer4(const QString& value);
  int OriginalPosX() const;
  void OriginalPosX(int value);
  int OriginalPosY() const;
  void OriginalPosY(int value);
  int HardwareNumberKey() const;
  void HardwareNumberKey(int value);
  int HardwareNumberKey1() const;
  void HardwareNumberKey1(int value);
  int HardwareNumberKey2() const;
  void HardwareNumberKey2(int value);
  int HardwareNumberKey3() const;
  void HardwareNumberKey3(int value);
  int HardwareNumberKey4() const;
  void HardwareNumberKey4(int value);
  int HardwareNumberKey5() const;
  void HardwareNumberKey5(int value);
  int HardwareNumberKey6() const;
  void HardwareNumberKey6(int value);
  int HardwareNumberKey7() const;
  void HardwareNumberKey7(int value);
  int HardwareNumberLed() const;
  void HardwareNumberLed(int value);
  int HardwareNumberButton() const;
  void HardwareNumberButton(int value);
  bool ShowDefined() const;
  void ShowDefined(bool value);
  QColor KeyDefinedColor() const;
  void KeyDefinedColor(const QColor& value);
  bool ShowX() const;
  void ShowX(bool value);
  bool VantaEnabled() const;
  void VantaEnabled(bool value);
  QString TargetSystem() const;
  void TargetSystem(const QString& value);
  QString ButtonNotes() const;
  void ButtonNotes(const QString& value);
  bool ShowXPermanent() const;
  void ShowXPermanent(bool value);

  /// Whether the key or LED itself is drawn under the marks, as on the picture of a panel. Off for a host with a
  /// picture of its own.
  bool FaceVisible() const { return faceVisible_; }
  void FaceVisible(bool value);
  /// The text on the key.
  QString Legend() const { return legend_; }
  void Legend(const QString& value);
  /// Draws parts of a panel instead of the usual face of the element's kind; none takes them away. Their places are
  /// pixels at zoom 100 from the corner of the widget.
  void Face(std::vector<PanelPart> parts);

  /// The definitions, a line for each layer that has one: what the tool tip says where the host sets none.
  QString Summary() const;

  /// Whether an element of the panel has the LED function in the layer, 1 to 4. Without it the widget looks at all
  /// element widgets of its window.
  std::function<bool(LedFunction function, int layer)> ledIsDefined;

  /// That of the surface.
  QSize sizeHint() const override;
  /// The same.
  QSize minimumSizeHint() const override { return sizeHint(); }

 public Q_SLOTS:
  /// Those of the element; what fails is reported.
  void OpenPropertiesDialog();
  void OpenConfigurationDialog();
  void UpdateFocus();
  void Refresh();
  void ShowDefinedObject(bool bVisible);

 Q_SIGNALS:
  /// Recording of keys has begun, or ended.
  void DirectInputStatusChanged(bool bDirectInputStatus);
  /// What the element sends, behind a configuration dialog and when the focus comes.
  void SendKeyDefinition(const plexel::KeyDefinition& definition);
  /// Buttons 1 left, 2 right, 4 middle; places in twips of the surface.
  void MouseClicked(int Button, int Shift, float x, float Y);
  /// A double click; connect it with OpenConfigurationDialog where it is to open the dialog.
  void MouseDblClicked();
  /// A dialog has stored something.
  void ProjectModified();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  class Container;
  class OwnerWindow;
  /// Does something on the element, hands failures on, and shows the outcome.
  void Run(const std::function<void(ctlPlexelBaseElement&)>& act);
  /// Sets a whole number through the property table, which knows its range.
  void Assign(const char* name, int value);
  /// Takes over a changed surface.
  void ShowSurface();
  void ShowSurfaceSoon();
  void GainFocus();
  void LoseFocus();
  bool LedIsDefinedInWindow(LedFunction function, int layer) const;
  void Draw(QPainter& painter) const;
  void DrawFace(QPainter& painter) const;

  std::unique_ptr<Container> container_;
  std::shared_ptr<OwnerWindow> ownerWindow_;
  std::shared_ptr<ctlPlexelBaseElement> element_;
  std::vector<PanelPart> face_;
  QString legend_;
  QSize shownSize_;
  bool faceVisible_ = true, focused_ = false, pressed_ = false, showPlanned_ = false;
};

}  // namespace plexel

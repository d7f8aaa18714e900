#include "editor/element_text.h"

#include <array>

#include "editor/texts.h"
#include "qt/units.h"
#include "services/conversion.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

constexpr std::int32_t HardwareKeys = 8, NoContact = -1;

struct KindRow {
  enumTactisBaseElementType type;
  Text text;
  bool hasKey, hasLed, hasContacts;
};
constexpr std::array kinds = {
    KindRow{Led, Text::KindLed, false, true, false},        KindRow{Oval, Text::KindOval, true, false, false},
    KindRow{OvalLed, Text::KindOvalLed, true, true, false}, KindRow{Rect, Text::KindRect, true, false, false},
    KindRow{RectLed, Text::KindRectLed, true, true, false}, KindRow{Key, Text::KindKey, false, false, true}};
constexpr KindRow unknownKind{Led, Text::KindUnknown, false, false, false};

const KindRow& KindOf(enumTactisBaseElementType type) {
  for (const KindRow& kind : kinds) {
    if (kind.type == type) return kind;
  }
  return unknownKind;
}

/// The numbers as the properties dialog tells them: two LED numbers stand for one LED.
QStringList Numbers(const ctlPlexelBaseElement& element, const KindRow& kind) {
  QStringList numbers;
  if (kind.hasKey) numbers.append(Say(Text::NumberOfKey).arg(element.HardwareNumberButton()));
  if (kind.hasLed) numbers.append(Say(Text::NumberOfLed).arg(RoundToInt32(element.HardwareNumberLed() / 2.0)));
  QStringList contacts;
  for (std::int32_t index = 0; kind.hasContacts && index < HardwareKeys; ++index) {
    const std::int32_t number = element.HardwareNumberKeyAt(index);
    if (number != NoContact) contacts.append(QString::number(number));
  }
  if (!contacts.isEmpty()) numbers.append(Say(Text::NumbersOfContacts).arg(contacts.join(", ")));
  return numbers;
}

QString LayerText(const ctlPlexelBaseElement& element, std::int32_t layer) {
  QStringList parts;
  const QString press = ToQt(element.PressKeyDefLayer(layer)), release = ToQt(element.ReleaseKeyDefLayer(layer));
  if (!press.isEmpty() || !release.isEmpty()) parts.append(release.isEmpty() ? press : press + " / " + release);
  const enumLedType led = element.LEDTypeLayer(layer);
  if (led != LedNotEnabled) parts.append(Say(Text::LedShows).arg(ToQt(LedTypeToText(led))));
  return parts.join("  ");
}

}  // namespace

QString KindText(enumTactisBaseElementType type) { return Say(KindOf(type).text); }

QStringList ElementText(const ctlPlexelBaseElement& element) {
  const KindRow& kind = KindOf(element.ElementType());
  QStringList text = {ToQt(element.Name()), Say(kind.text)};
  text += Numbers(element, kind);
  if (kind.hasContacts) return text + QStringList(Say(Text::NothingToConfigure));
  const QStringList definition = DefinitionText(element);
  return text + (definition.isEmpty() ? QStringList(Say(Text::NotDefined)) : definition);
}

QStringList DefinitionText(const ctlPlexelBaseElement& element) {
  QStringList told, layers;
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    told.append(LayerText(element, layer));
    if (!told.back().isEmpty()) layers.append(Say(Text::Layer).arg(layer).arg(told.back()));
  }
  const bool alike = told.count(told.front()) == told.size() && !told.front().isEmpty();
  return alike ? QStringList(Say(Text::AllLayers).arg(told.front())) : layers;
}

}  // namespace plexel

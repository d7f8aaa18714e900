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

/// "[a\u2039\u203A][b\u2039]" as "a b\u2039".
QString WithoutSignsOfStrokes(QString definition) {
  const QString make = QString::fromUtf8("\u2039"), both = QString::fromUtf8("\u2039\u203A");
  if (!definition.startsWith('[') || !definition.endsWith(']')) return definition;
  definition = definition.sliced(1).replace(both + "][", " ").replace(make + "][", make + " ");
  definition.replace(QString::fromUtf8("\u203A]["), QString::fromUtf8("\u203A "));
  definition.chop(1);
  return definition.endsWith(both) ? definition.chopped(both.size()) : definition;
}

QString ShortLayerText(const ctlPlexelBaseElement& element, std::int32_t layer) {
  QStringList parts;
  const QString press = WithoutSignsOfStrokes(ToQt(element.PressKeyDefLayer(layer)));
  const QString release = WithoutSignsOfStrokes(ToQt(element.ReleaseKeyDefLayer(layer)));
  // A key whose halves are stored apart is one key all the same.
  const QString pressed = QString(press).remove(QString::fromUtf8("\u2039"));
  const bool sameKeys = !press.isEmpty() && pressed == QString(release).remove(QString::fromUtf8("\u203A"));
  if (!press.isEmpty()) parts.append(sameKeys ? pressed : press);
  if (!release.isEmpty() && !sameKeys) parts.append("/ " + release);
  const enumLedType led = element.LEDTypeLayer(layer);
  if (led != LedNotEnabled) parts.append(Say(Text::LedShows).arg(ToQt(LedTypeToText(led))));
  return parts.join(' ');
}

/// A definition as long as a tool tip has room for.
QString Cut(const QString& text) {
  constexpr qsizetype Most = 60;
  return text.size() <= Most ? text : text.left(Most) + QString::fromUtf8("\u2026");
}

}  // namespace

QStringList NumbersText(const ctlPlexelBaseElement& element) { return Numbers(element, KindOf(element.ElementType())); }

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

bool IsDefinedOn(const ctlPlexelBaseElement& element, std::int32_t layer) {
  if (layer == AllLayersShown) {
    for (std::int32_t one = 1; one <= LayerCount; ++one) {
      if (IsDefinedOn(element, one)) return true;
    }
    return false;
  }
  return !element.PressKeyDefLayer(layer).empty() || !element.ReleaseKeyDefLayer(layer).empty() ||
         element.LEDTypeLayer(layer) != LedNotEnabled;
}

QString LabelText(const ctlPlexelBaseElement& element, std::int32_t layer) {
  if (layer != AllLayersShown) return ShortLayerText(element, layer);
  QStringList told, layers;
  for (std::int32_t one = 1; one <= LayerCount; ++one) {
    told.append(ShortLayerText(element, one));
    if (!told.back().isEmpty()) layers.append(QString::number(one) + ": " + told.back());
  }
  return told.count(told.front()) == told.size() ? told.front() : layers.join("  ");
}

QStringList TipText(const ctlPlexelBaseElement& element, const QString& legend) {
  const KindRow& kind = KindOf(element.ElementType());
  const QString name = ToQt(element.Name()), plain = legend.simplified();
  QStringList text = {plain.isEmpty() || plain == name ? name : plain + " (" + name + ')', Say(kind.text)};
  if (kind.hasContacts) return text;
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    QStringList parts;
    const QString press = ToQt(element.PressKeyDefLayer(layer)), release = ToQt(element.ReleaseKeyDefLayer(layer));
    if (!press.isEmpty()) parts.append(Say(Text::TipPress).arg(Cut(press)));
    if (!release.isEmpty()) parts.append(Say(Text::TipRelease).arg(Cut(release)));
    const enumLedType led = element.LEDTypeLayer(layer);
    if (led != LedNotEnabled) parts.append(Say(Text::LedShows).arg(ToQt(LedTypeToText(led))));
    text.append(Say(Text::Layer).arg(layer).arg(parts.isEmpty() ? Say(Text::NotDefined) : parts.join(", ")));
  }
  return text;
}

}  // namespace plexel

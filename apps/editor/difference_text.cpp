#include "editor/difference_text.h"

#include <QStringList>
#include <array>

#include "editor/texts.h"
#include "qt/units.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

/// What a key of the bag or a field of the record is called; "%" stands for the layer.
struct KeyText {
  std::string_view key;
  Text text;
};
constexpr KeyText layerKeys[] = {{"PressKeyDefLayer%", Text::PressOfLayer},
                                 {"ReleaseKeyDefLayer%", Text::ReleaseOfLayer},
                                 {"LedType%", Text::LedOfLayer},
                                 {"strLayer%PressScanCode", Text::PressBytesOfLayer},
                                 {"strLayer%ReleaseScanCode", Text::ReleaseBytesOfLayer}};
constexpr KeyText plainKeys[] = {{"ButtonNotes", Text::NotesOf},
                                 {"HardwareNumberLed", Text::LedNumber},
                                 {"HardwareNumberButton", Text::ButtonNumber},
                                 {"HardwareNumberKey", Text::KeyNumber},
                                 {"WizardOptions", Text::DefinedHow}};
/// By enumWizardOptions.
constexpr std::array wizardTexts = {Text::SingleKeystroke, Text::KeyHeld, Text::PanelFunction, Text::SystemShortcut,
                                    Text::DefinedByHand};
static_assert(wizardTexts.size() == ManuallyDefined + 1);

/// The layer when the name is the pattern with a digit in place of "%"; 0 otherwise.
int LayerIn(std::string_view name, std::string_view pattern) {
  const std::size_t place = pattern.find('%');
  if (name.size() != pattern.size() || name.substr(0, place) != pattern.substr(0, place) ||
      name.substr(place + 1) != pattern.substr(place + 1)) {
    return 0;
  }
  return name[place] >= '1' && name[place] <= '4' ? name[place] - '0' : 0;
}

QString NameOf(const std::string& key) {
  for (const KeyText& one : layerKeys) {
    if (const int layer = LayerIn(key, one.key); layer > 0) return Say(one.text).arg(layer);
  }
  for (const KeyText& one : plainKeys) {
    if (one.key == key) return Say(one.text);
  }
  return ToQt(key);
}

QString ValueText(const ProjectDifference& difference, const std::optional<BagValue>& value) {
  if (!value) return Say(Text::NotThere);
  if (const auto* const text = std::get_if<std::string>(&*value)) {
    return text->empty() ? Say(Text::Nothing) : ToQt(*text);
  }
  if (const auto* const number = std::get_if<std::int32_t>(&*value)) {
    if (LayerIn(difference.name, "LedType%") > 0) return ToQt(LedTypeToText(*number));
    if (difference.name == "WizardOptions" && *number >= NormalKey && *number <= ManuallyDefined) {
      return Say(wizardTexts[static_cast<std::size_t>(*number)]);
    }
  }
  return ToQt(BagToString(*value));
}

/// The first lines in which two descriptions of a panel differ.
void FirstLines(const ProjectDifference& difference, DifferenceText& text) {
  const auto lines = [](const std::optional<BagValue>& value) {
    return value ? ToQt(BagToString(*value)).split('\n') : QStringList();
  };
  const QStringList from = lines(difference.from), to = lines(difference.to);
  const auto [left, right] = std::mismatch(from.begin(), from.end(), to.begin(), to.end());
  text.from = left == from.end() ? Say(Text::NotThere) : *left;
  text.to = right == to.end() ? Say(Text::NotThere) : *right;
}

}  // namespace

DifferenceText TextOf(const ProjectDifference& difference) {
  DifferenceText text;
  text.element = ToQt(difference.element);
  switch (difference.kind) {
    case DifferenceKind::Panel:
      text.what = Say(Text::PanelOf);
      break;
    case DifferenceKind::PanelText:
      text.what = Say(Text::CarriedPanelOf);
      FirstLines(difference, text);
      return text;
    case DifferenceKind::OnlyFirst:
    case DifferenceKind::OnlySecond:
      text.what = Say(Text::WholeElement);
      (difference.kind == DifferenceKind::OnlyFirst ? text.to : text.from) = Say(Text::NotThere);
      return text;
    case DifferenceKind::Property:
    case DifferenceKind::Codes:
      text.what = NameOf(difference.name);
      break;
  }
  text.from = ValueText(difference, difference.from);
  text.to = ValueText(difference, difference.to);
  if (text.from == text.to) {
    text.from += " | " + ToQt(difference.fromBehind);
    text.to += " | " + ToQt(difference.toBehind);
  }
  return text;
}

QString SummaryOf(const std::vector<ProjectDifference>& differences) {
  QStringList elements;
  for (const ProjectDifference& difference : differences) {
    const QString name = difference.element.empty() ? Say(Text::PanelOf) : ToQt(difference.element);
    if (elements.isEmpty() || elements.back() != name) elements.append(name);  // those of an element stand together
  }
  if (elements.isEmpty()) return Say(Text::NoDifference);
  constexpr qsizetype named = 8;
  const QString more = elements.size() > named ? ", \u2026" : QString();
  return Say(Text::DifferentElements).arg(elements.size()).arg(elements.mid(0, named).join(", ") + more);
}

}  // namespace plexel

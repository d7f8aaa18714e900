#include "project/report.h"

#include "project/code_bytes.h"
#include "project/problems.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

constexpr std::int32_t HardwareKeys = 8, NoContact = -1;

enum class Sender { None, Button, Contacts };

/// What an element of a kind has.
struct KindRow {
  enumTactisBaseElementType kind;
  Sender sender;
  bool hasLed;
};
constexpr std::array kinds = {KindRow{Led, Sender::None, true},       KindRow{Oval, Sender::Button, false},
                              KindRow{OvalLed, Sender::Button, true}, KindRow{Rect, Sender::Button, false},
                              KindRow{RectLed, Sender::Button, true}, KindRow{Key, Sender::Contacts, false}};
constexpr KindRow anyKind{Led, Sender::Button, true};

const KindRow& KindOf(enumTactisBaseElementType type) {
  for (const KindRow& kind : kinds) {
    if (kind.kind == type) return kind;
  }
  return anyKind;
}

std::string BytesOf(const udtTactisBaseElement_TACTIS_SCANCODE& codes) {
  return codes.NextValue > 0 ? BytesText(codes, 0, static_cast<std::size_t>(codes.NextValue)) : std::string();
}

std::string ContactsOf(const ctlPlexelBaseElement& element) {
  std::string numbers;
  for (std::int32_t index = 0; index < HardwareKeys; ++index) {
    const std::int32_t number = element.HardwareNumberKeyAt(index);
    if (number != NoContact) numbers += (numbers.empty() ? "" : " ") + std::to_string(number);
  }
  return numbers;
}

/// "layer 2, press"; empty for a problem of no layer.
std::string PlaceOf(const Problem& problem, const ReportWords& words) {
  std::string layers;
  for (const std::int32_t layer : problem.layers) layers += (layers.empty() ? "" : "+") + std::to_string(layer);
  const bool one = problem.layers.size() == 1;
  std::string place = layers.empty() ? layers : words.With(one ? ReportWord::OnLayer : ReportWord::OnLayers, layers);
  if (problem.direction) {  // which is one of a layer
    place += ", " + words.problems.directions[static_cast<std::size_t>(*problem.direction)];
  }
  return place;
}

std::vector<ReportProblem> ProblemsOf(const PanelDocument& document, const ReportWords& words) {
  const Problems problems(document);
  std::vector<ReportProblem> told;
  for (const Problem& problem : problems.All()) {
    told.push_back({problems.Element(problem.element).Name(), PlaceOf(problem, words),
                    plexel::RowOf(problem.rule).level, problems.Text(problem, words.problems)});
  }
  return told;
}

}  // namespace

std::array<ReportRow, LayerCount> RowsOf(const ctlPlexelBaseElement& element, const ReportWords& words) {
  std::array<ReportRow, LayerCount> rows;
  const KindRow& kind = KindOf(element.ElementType());
  const udtTactisBaseElement_ScanCodeInfo record = element.TactisBaseElementScanCodeBuffer();
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    ReportRow& row = rows[static_cast<std::size_t>(layer - 1)];
    row.element = element.Name();
    row.kind = words.KindOf(element.ElementType());
    row.layer = layer;
    row.press = element.PressKeyDefLayer(layer);
    row.release = element.ReleaseKeyDefLayer(layer);
    row.pressBytes = BytesOf(*PressBuffer(record, layer));
    row.releaseBytes = BytesOf(*ReleaseBuffer(record, layer));
    if (element.LEDTypeLayer(layer) != LedNotEnabled) row.led = LedTypeToText(element.LEDTypeLayer(layer));
    if (kind.sender == Sender::Button) row.buttonNumber = std::to_string(element.HardwareNumberButton());
    if (kind.sender == Sender::Contacts) row.buttonNumber = ContactsOf(element);
    if (kind.hasLed) row.ledNumber = std::to_string(element.HardwareNumberLed());
    row.note = element.ButtonNotes();
  }
  return rows;
}

Report ReportOf(const PanelDocument& document, std::string name, ReportWords words) {
  Report report;
  report.words = std::move(words);
  report.panel = &document.ThePanel();
  report.name = std::move(name);
  for (const PanelDocument::Place& place : document.Places()) {
    for (ReportRow& row : RowsOf(*place.element, report.words)) report.rows.push_back(std::move(row));
  }
  report.problems = ProblemsOf(document, report.words);
  return report;
}

}  // namespace plexel

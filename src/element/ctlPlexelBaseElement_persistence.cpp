#include "element/ctlPlexelBaseElement.h"

#include <array>
#include <cmath>

#include "element/property_rows.h"
#include "element/property_table.h"
#include "platform/platform.h"
#include "services/component_life.h"
#include "services/failure_styles.h"

namespace plexel {

namespace {

/// How many rows have a place in an order.
template <std::int32_t Storage::* order>
consteval std::size_t CountOf() {
  std::size_t count = 0;
  for (const PropertyRow& row : propertyRows) count += row.storage.*order != 0 ? 1 : 0;
  return count;
}

/// The rows that have a place in an order, in that order. Does not compile when places are missing or doubled.
template <std::int32_t Storage::* order>
consteval auto RowsBy() {
  constexpr std::size_t none = propertyRows.size();
  std::array<std::size_t, CountOf<order>()> rows{};
  rows.fill(none);
  for (std::size_t row = 0; row < propertyRows.size(); ++row) {
    const std::int32_t place = propertyRows[row].storage.*order;
    if (place == 0) continue;
    std::size_t& entry = rows.at(static_cast<std::size_t>(place - 1));
    if (entry != none) throw "two rows share a place";
    entry = row;
  }
  for (const std::size_t row : rows) {
    if (row == none) throw "a place is missing";
  }
  return rows;
}

constexpr auto readRows = RowsBy<&Storage::readOrder>();
static_assert(readRows.size() == StoredKeyCount);
constexpr auto writeRows = RowsBy<&Storage::writeOrder>();

/// The write rule: a value equal to the default is not stored. A boolean counts as true (-1) or false (0), which never
/// equals a default of 1.
bool EqualsDefault(const BagValue& value, std::int32_t writeDefault) {
  if (const auto* text = std::get_if<std::string>(&value)) return text->empty();
  if (const auto* boolean = std::get_if<Boolean>(&value)) return Boolean(*boolean != False).Value() == writeDefault;
  return BagToInt32(value) == writeDefault;
}

const BagValue emptyText = std::string();

void ReadRow(ctlPlexelBaseElement& element, const PropertyRow& row, const PropertyBag& bag) {
  const auto place = static_cast<std::size_t>(row.storage.readOrder - 1);
  const BagValue* const stored = bag.FindOwn(place, row.storage.key);
  if (stored != nullptr) {
    row.load(element, *stored);
  } else if (row.type == PropertyType::String) {
    row.load(element, emptyText);
  } else {
    row.load(element, BagValue(row.storage.readDefault));
  }
}

/// A value that the float arithmetic could find; Failure (Overflow) otherwise.
float Finite(double value) {
  const auto single = static_cast<float>(value);
  if (!std::isfinite(single)) throw Failure(FailureKind::Overflow, "a position left the range of its type");
  return single;
}

}  // namespace

static_assert(sizeof(ctlPlexelBaseElement) <= 696);

ctlPlexelBaseElement::ctlPlexelBaseElement(std::string name, ElementHost& host)
    : name_(std::move(name)), host_(&host), life_(ComponentLife::Current()) {}

/// One block of memory for the element and its counts.
std::shared_ptr<ctlPlexelBaseElement> ctlPlexelBaseElement::Make(std::string name, ElementHost& host) {
  struct Shared : ctlPlexelBaseElement {
    Shared(std::string name, ElementHost& host) : ctlPlexelBaseElement(std::move(name), host) {}
  };
  return std::make_shared<Shared>(std::move(name), host);
}

std::shared_ptr<ctlPlexelBaseElement> ctlPlexelBaseElement::Create(std::string name, ElementHost& host) {
  const std::shared_ptr<ctlPlexelBaseElement> element = Make(std::move(name), host);
  element->UserControl_Initialize();
  element->UserControl_InitProperties();
  return element;
}

std::shared_ptr<ctlPlexelBaseElement> ctlPlexelBaseElement::Read(std::string name, ElementHost& host,
                                                                 const PropertyBag& bag) {
  const std::shared_ptr<ctlPlexelBaseElement> element = Make(std::move(name), host);
  element->UserControl_Initialize();
  element->UserControl_ReadProperties(bag);
  return element;
}

void ctlPlexelBaseElement::UserControl_Initialize() {
  EndQuietly([&] {
    surface_.Picture = false;
    Screen& screen = Platform::Current().TheScreen();
    for (SurfaceShape* const shape : {&surface_.shpOval, &surface_.shpRect}) {
      shape->Left = Finite(focusWidth_ * static_cast<double>(screen.TwipsPerPixelX()));
      shape->Top = Finite(focusWidth_ * static_cast<double>(screen.TwipsPerPixelY()));
      shape->Width = Finite(surface_.Width - focusWidth_ * static_cast<double>(screen.TwipsPerPixelX()));
      shape->Height = Finite(surface_.Height - focusWidth_ * static_cast<double>(screen.TwipsPerPixelY()));
    }
    DPIFontScaleFactor(1.0);
    for (std::int32_t index = 0; index < 8; ++index) HardwareNumberKeyAt(index, -1);
  });
}

void ctlPlexelBaseElement::UserControl_InitProperties() {
  EndQuietly([&] {
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) LEDTypeLayer(layer, LedNotEnabled);
  });
}

void ctlPlexelBaseElement::UserControl_ReadProperties(const PropertyBag& bag) {
  EndQuietly([&] {
    for (const std::size_t row : readRows) ReadRow(*this, propertyRows[row], bag);
  });
}

void ctlPlexelBaseElement::UserControl_WriteProperties(PropertyBag& bag) const {
  EndQuietly([&] {
    for (const std::size_t place : writeRows) {
      const PropertyRow& row = propertyRows[place];
      BagValue value = row.save(*this);
      if (EqualsDefault(value, row.storage.writeDefault)) {
        bag.Remove(row.storage.key);
      } else {
        bag.Store(row.storage.key, std::move(value));
      }
    }
  });
}

void ctlPlexelBaseElement::UserControl_Terminate() {
  EndQuietly([&] { ElementType(enumTactisBaseElementType{}); });
}

}  // namespace plexel

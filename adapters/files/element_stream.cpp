#include "files/element_stream.h"

#include <array>
#include <string>
#include <variant>

#include "element/property_table.h"
#include "services/failure_styles.h"

namespace plexel {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::array<std::uint8_t, 4> Magic = {'P', 'l', 'x', 'E'};
constexpr std::uint32_t Version = 1;
constexpr std::size_t ChecksumSize = 4;
/// More than any element has; what a head tells beyond is taken for damage.
constexpr std::size_t Limit = std::size_t{1} << 26U;

/// The checksum of many formats: polynomial 0x04C11DB7, bits reversed.
std::uint32_t ChecksumOf(Bytes bytes) {
  std::uint32_t sum = 0xFFFFFFFFU;
  for (const std::uint8_t byte : bytes) {
    sum ^= byte;
    for (int bit = 0; bit < 8; ++bit) sum = (sum >> 1U) ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
  }
  return ~sum;
}

/// Numbers lie with their low byte first.
void PutNumber(std::vector<std::uint8_t>& bytes, std::uint32_t value, std::size_t size) {
  for (std::size_t index = 0; index < size; ++index) bytes.push_back(static_cast<std::uint8_t>(value >> (8 * index)));
}

std::uint32_t NumberAt(Bytes bytes) {
  std::uint32_t value = 0;
  for (std::size_t index = 0; index < bytes.size(); ++index) value |= std::uint32_t{bytes[index]} << (8 * index);
  return value;
}

bool IsWritten(const PropertyRow& row) { return row.storage.writeOrder != 0; }

void PutText(std::vector<std::uint8_t>& bytes, const std::string& text) {
  PutNumber(bytes, static_cast<std::uint32_t>(text.size()), 4);
  bytes.insert(bytes.end(), text.begin(), text.end());
}

/// What is stored is of one of five types; of the others none is written.
void PutValue(std::vector<std::uint8_t>& bytes, PropertyType type, const BagValue& value) {
  switch (type) {
    case PropertyType::Int16:
      return PutNumber(bytes, static_cast<std::uint16_t>(std::get<std::int16_t>(value)), 2);
    case PropertyType::Int32:
      return PutNumber(bytes, static_cast<std::uint32_t>(std::get<std::int32_t>(value)), 4);
    case PropertyType::UInt8:
      return PutNumber(bytes, std::get<std::uint8_t>(value), 1);
    case PropertyType::Bool:
      return PutNumber(bytes, static_cast<std::uint16_t>(std::get<Boolean>(value).Value()), 2);
    default:
      return PutText(bytes, std::get<std::string>(value));
  }
}

/// Takes values off the front of what is left. Nothing for what is not there.
class Reader {
 public:
  explicit Reader(Bytes bytes) : left_(bytes) {}
  bool AtEnd() const { return left_.empty(); }

  std::optional<BagValue> Value(PropertyType type) {
    switch (type) {
      case PropertyType::Int16:
        return Number<std::int16_t>(2);
      case PropertyType::Int32:
        return Number<std::int32_t>(4);
      case PropertyType::UInt8:
        return Number<std::uint8_t>(1);
      case PropertyType::Bool:
        if (const auto value = Take(2)) return Boolean::Raw(static_cast<std::int16_t>(NumberAt(*value)));
        return std::nullopt;
      default:
        return Text();
    }
  }

 private:
  std::optional<Bytes> Take(std::size_t size) {
    if (left_.size() < size) return std::nullopt;
    const Bytes taken = left_.first(size);
    left_ = left_.subspan(size);
    return taken;
  }
  template <typename Type>
  std::optional<BagValue> Number(std::size_t size) {
    const auto taken = Take(size);
    if (!taken) return std::nullopt;
    return static_cast<Type>(NumberAt(*taken));
  }
  std::optional<BagValue> Text() {
    const auto size = Take(4);
    const auto text = size ? Take(NumberAt(*size)) : std::nullopt;
    if (!text) return std::nullopt;
    return std::string(text->begin(), text->end());
  }

  Bytes left_;
};

}  // namespace

std::vector<std::uint8_t> StreamOf(const ctlPlexelBaseElement& element) {
  std::vector<std::uint8_t> values;
  for (const PropertyRow& row : PropertyTable()) {
    if (IsWritten(row)) PutValue(values, row.type, row.save(element));
  }
  return Sealed(values);
}

std::vector<std::uint8_t> Sealed(Bytes values) {
  std::vector<std::uint8_t> bytes(Magic.begin(), Magic.end());
  PutNumber(bytes, Version, 4);
  PutNumber(bytes, static_cast<std::uint32_t>(values.size() + ChecksumSize), 4);
  bytes.insert(bytes.end(), values.begin(), values.end());
  PutNumber(bytes, ChecksumOf(bytes), ChecksumSize);
  return bytes;
}

std::optional<std::size_t> BytesBehind(Bytes head) {
  if (head.size() != StreamHeadSize || !std::equal(Magic.begin(), Magic.end(), head.begin())) return std::nullopt;
  if (NumberAt(head.subspan(4, 4)) != Version) return std::nullopt;
  const std::size_t size = NumberAt(head.subspan(8, 4));
  if (size < ChecksumSize || size > Limit) return std::nullopt;
  return size;
}

std::optional<FlatBag> BagOf(Bytes stream) {
  if (stream.size() < StreamHeadSize) return std::nullopt;
  const std::optional<std::size_t> behind = BytesBehind(stream.first(StreamHeadSize));
  if (!behind || stream.size() != StreamHeadSize + *behind) return std::nullopt;
  const Bytes ahead = stream.first(stream.size() - ChecksumSize);
  if (NumberAt(stream.last(ChecksumSize)) != ChecksumOf(ahead)) return std::nullopt;
  FlatBag bag;
  Reader reader(ahead.subspan(StreamHeadSize));
  for (const PropertyRow& row : PropertyTable()) {
    if (!IsWritten(row)) continue;
    std::optional<BagValue> value = reader.Value(row.type);
    if (!value) return std::nullopt;
    bag.Store(row.storage.key, *std::move(value));
  }
  if (!reader.AtEnd()) return std::nullopt;
  return bag;
}

void ReadRest(ctlPlexelBaseElement& element, const FlatBag& bag) {
  for (const PropertyRow& row : PropertyTable()) {
    const BagValue* const value = IsWritten(row) ? bag.Find(row.storage.key) : nullptr;
    if (value != nullptr && row.save(element) != *value) PassOver([&] { row.load(element, *value); });
  }
}

}  // namespace plexel

#pragma once

#include <limits>
#include <string>
#include <string_view>

#include "element/property_row.h"

namespace plexel::property_access {

/// The functions behind a row of the property table, made from a property's getter and setter.

using Element = ctlPlexelBaseElement;

template <PropertyType type>
struct NativeType;
template <>
struct NativeType<PropertyType::Int16> {
  using Type = std::int16_t;
};
template <>
struct NativeType<PropertyType::Int32> {
  using Type = std::int32_t;
};
template <>
struct NativeType<PropertyType::UInt8> {
  using Type = std::uint8_t;
};
template <>
struct NativeType<PropertyType::Bool> {
  using Type = Boolean;
};
template <>
struct NativeType<PropertyType::Double> {
  using Type = double;
};
template <>
struct NativeType<PropertyType::String> {
  using Type = const std::string&;
};
template <PropertyType type>
using Native = typename NativeType<type>::Type;

template <typename T>
using Getter = T (Element::*)() const;
template <typename T>
using Setter = void (Element::*)(T);

/// Conversions of a value that is to be set; the name stands in their failures.
std::int32_t ToInteger(const PropertyData& value, std::string_view name, std::int32_t low, std::int32_t high);
double ToDouble(const PropertyData& value, std::string_view name);
/// Of a number.
std::string ToText(const PropertyData& value);

template <PropertyType type, typename T, Getter<T> get>
PropertyData GetData(const Element& element) {
  if constexpr (type == PropertyType::Double || type == PropertyType::String) {
    return PropertyData((element.*get)());
  } else if constexpr (type == PropertyType::Bool) {
    return PropertyData(std::int32_t{(element.*get)().Value()});
  } else {
    return PropertyData(static_cast<std::int32_t>((element.*get)()));
  }
}

/// A whole number or a boolean in the range of the property's type.
template <PropertyType type, typename T, Setter<T> set>
void SetWhole(Element& element, std::int32_t value) {
  if constexpr (type == PropertyType::Bool) {
    (element.*set)(Boolean::Raw(static_cast<std::int16_t>(value)));
  } else {
    (element.*set)(static_cast<T>(value));
  }
}

template <PropertyType type, typename T, Setter<T> set>
consteval auto SetWholeOf() {
  constexpr bool whole = type != PropertyType::Double && type != PropertyType::String;
  if constexpr (whole) {
    return SetWhole<type, T, set>;
  } else {
    return nullptr;
  }
}

template <PropertyType type, typename T, Setter<T> set>
void SetData(Element& element, const PropertyData& value, std::string_view name) {
  if constexpr (type == PropertyType::Double) {
    (element.*set)(ToDouble(value, name));
  } else if constexpr (type == PropertyType::String) {
    const auto* text = std::get_if<std::string>(&value);
    (element.*set)(text != nullptr ? *text : ToText(value));
  } else if constexpr (type == PropertyType::Bool) {
    using Range = std::numeric_limits<std::int16_t>;
    SetWhole<type, T, set>(element, ToInteger(value, name, Range::min(), Range::max()));
  } else {
    using Range = std::numeric_limits<Native<type>>;
    SetWhole<type, T, set>(element, ToInteger(value, name, Range::min(), Range::max()));
  }
}

template <PropertyType type, typename T, Setter<T> set>
void LoadData(Element& element, const BagValue& value) {
  if constexpr (type == PropertyType::Int16) {
    (element.*set)(BagToInt16(value));
  } else if constexpr (type == PropertyType::Int32) {
    (element.*set)(static_cast<T>(BagToInt32(value)));
  } else if constexpr (type == PropertyType::UInt8) {
    (element.*set)(BagToUInt8(value));
  } else if constexpr (type == PropertyType::Bool) {
    (element.*set)(BagToBoolean(value));
  } else {
    static_assert(type == PropertyType::String);
    const auto* text = std::get_if<std::string>(&value);
    (element.*set)(text != nullptr ? *text : BagToString(value));
  }
}

template <PropertyType type, typename T, Getter<T> get>
BagValue SaveData(const Element& element) {
  if constexpr (type == PropertyType::Int32) {
    return static_cast<std::int32_t>((element.*get)());
  } else {
    return (element.*get)();
  }
}

template <PropertyType type, typename T, Getter<T> get, Setter<T> set>
consteval PropertyRow MakeRow(std::string_view name, NoticeStyle notice, Storage storage) {
  return {name,
          type,
          notice,
          storage,
          GetData<type, T, get>,
          SetData<type, T, set>,
          LoadData<type, T, set>,
          SaveData<type, T, get>,
          SetWholeOf<type, T, set>()};
}

/// A property that is stored.
template <PropertyType type, Getter<Native<type>> get, Setter<Native<type>> set>
consteval PropertyRow Row(std::string_view name, NoticeStyle notice, Storage storage) {
  return MakeRow<type, Native<type>, get, set>(name, notice, storage);
}

/// A property of an enumeration that is stored.
template <typename T, Getter<T> get, Setter<T> set>
consteval PropertyRow Choice(std::string_view name, NoticeStyle notice, Storage storage) {
  return MakeRow<PropertyType::Int32, T, get, set>(name, notice, storage);
}

/// A property that is never stored.
template <PropertyType type, Getter<Native<type>> get, Setter<Native<type>> set>
consteval PropertyRow Unstored(std::string_view name, NoticeStyle notice) {
  using T = Native<type>;
  return {name,
          type,
          notice,
          {},
          GetData<type, T, get>,
          SetData<type, T, set>,
          nullptr,
          nullptr,
          SetWholeOf<type, T, set>()};
}

/// A property that is reached by the typed interface only.
consteval PropertyRow Closed(std::string_view name, PropertyType type) {
  return {name, type, NoticeStyle::None, {}, nullptr, nullptr, nullptr, nullptr, nullptr};
}

}  // namespace plexel::property_access

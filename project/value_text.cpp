#include "project/value_text.h"

#include <charconv>
#include <cmath>

#include "files/project_syntax.h"
#include "project/json_text.h"

namespace plexel {

namespace {

template <typename Number>
std::string NumberText(Number number) {
  char digits[32];
  return std::string(digits, std::to_chars(digits, digits + sizeof(digits), number).ptr);
}

TypedJson ToJson(std::int16_t value) { return {project_syntax::Int16, NumberText(value)}; }
TypedJson ToJson(std::int32_t value) { return {project_syntax::Int32, NumberText(value)}; }
TypedJson ToJson(std::uint8_t value) { return {project_syntax::UInt8, NumberText(static_cast<unsigned>(value))}; }
TypedJson ToJson(Boolean value) { return {project_syntax::BooleanType, NumberText(value.Value())}; }
TypedJson ToJson(double value) {
  if (!std::isfinite(value)) return {project_syntax::Double, '"' + NumberText(value) + '"'};
  const bool isMinusZero = value == 0 && std::signbit(value);
  // A whole number would come back without its sign.
  return {project_syntax::Double, isMinusZero ? "-0.0" : NumberText(value)};
}
TypedJson ToJson(const std::string& value) {
  TypedJson typed{project_syntax::Text, {}};
  AppendJsonText(typed.json, value);
  return typed;
}

}  // namespace

TypedJson JsonOf(const BagValue& value) {
  return std::visit([](const auto& held) { return ToJson(held); }, value);
}

}  // namespace plexel

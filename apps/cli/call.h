#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "cli/arguments.h"
#include "cli/values_json.h"

namespace plexel {

/// Calls a procedure with arguments taken from a command, and puts its result into the answer as "result". Parameters
/// are whole numbers, enumerations, floats and texts; a bool result stands as the system's boolean.
namespace call {

template <typename Parameter>
using Held = std::conditional_t<std::is_same_v<std::remove_cvref_t<Parameter>, std::string_view>, std::string,
                                std::remove_cvref_t<Parameter>>;

template <typename Type>
Type Take(Arguments& arguments) {
  if constexpr (std::is_same_v<Type, std::string>) {
    return arguments.Text();
  } else if constexpr (std::is_floating_point_v<Type>) {
    return arguments.Single();
  } else if constexpr (std::is_same_v<Type, Boolean>) {
    return Boolean::Raw(arguments.Int16());
  } else if constexpr (sizeof(Type) == sizeof(std::int16_t)) {
    return static_cast<Type>(arguments.Int16());
  } else {
    return static_cast<Type>(arguments.Int32());
  }
}

template <typename Result>
Json ResultToJson(const Result& result) {
  if constexpr (std::is_same_v<Result, bool> || std::is_same_v<Result, Boolean>) {
    return BooleanToJson(result);
  } else if constexpr (std::is_floating_point_v<Result>) {
    return NumberToJson(result);
  } else if constexpr (std::is_enum_v<Result>) {
    return Json(static_cast<std::int32_t>(result));
  } else {
    return Json(result);
  }
}

template <typename... Parameters, typename Procedure>
void Run(Procedure&& procedure, Arguments& arguments, Json& answer) {
  std::tuple<Held<Parameters>...> held{Take<Held<Parameters>>(arguments)...};
  using Result = std::remove_cvref_t<decltype(std::apply(procedure, held))>;
  if constexpr (std::is_void_v<Result>) {
    std::apply(procedure, held);
  } else {
    answer["result"] = ResultToJson<Result>(std::apply(procedure, held));
  }
}

/// The parts of a procedure's type.
template <typename Procedure>
struct Parts;

template <typename Result, typename... Parameters>
struct Parts<Result (*)(Parameters...)> {
  static constexpr std::size_t Count = sizeof...(Parameters);
  template <typename Procedure>
  static void RunWith(Procedure&& procedure, Arguments& arguments, Json& answer) {
    Run<Parameters...>(procedure, arguments, answer);
  }
};

template <typename Result, typename Class, typename... Parameters>
struct Parts<Result (Class::*)(Parameters...)> : Parts<Result (*)(Parameters...)> {
  using Owner = Class;
};

template <typename Result, typename Class, typename... Parameters>
struct Parts<Result (Class::*)(Parameters...) const> : Parts<Result (*)(Parameters...)> {
  using Owner = Class;
};

/// The same for a method of an object.
template <auto method>
void OnObject(typename Parts<decltype(method)>::Owner& object, Arguments& arguments, Json& answer) {
  Parts<decltype(method)>::RunWith(
      [&object]<typename... Values>(Values&&... values) { return (object.*method)(std::forward<Values>(values)...); },
      arguments, answer);
}

}  // namespace call
}  // namespace plexel

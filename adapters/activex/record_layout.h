#pragma once

#include <ole2.h>
#include <windows.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "activex/com_pointer.h"

namespace plexel::activex {

/// How a record of the type library lies in memory, as the library itself tells.
struct RecordLayout {
  /// What a field is.
  enum class Kind { Number, Text, Bytes, Record };
  /// One field.
  struct Field {
    std::wstring name;
    Kind kind = Kind::Number;
    VARTYPE type = VT_EMPTY;       ///< of a number; an enumeration is VT_I4
    std::size_t offset = 0;        ///< bytes
    std::size_t size = 0;          ///< bytes
    ComPointer<ITypeInfo> record;  ///< of a record
  };

  std::wstring name;
  GUID id{};
  std::size_t size = 0;  ///< bytes
  std::vector<Field> fields;
  /// Where texts lie, those of records within too.
  std::vector<std::size_t> texts;

  /// The field of a name, whose case does not matter; null for none.
  const Field* Find(std::wstring_view asked) const;
  /// The layout of a record. ResultError for a type that is none, or that has fields of other kinds.
  static RecordLayout Of(ITypeInfo& type);
};

}  // namespace plexel::activex

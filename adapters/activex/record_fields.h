#pragma once

#include <ole2.h>
#include <windows.h>

#include "activex/record_layout.h"

namespace plexel::activex {

/// A field of a record as a value, copied: a number, a text, an array of bytes, or a record within. ResultError when
/// that fails.
void ReadField(const void* record, const RecordLayout::Field& field, VARIANT& value);
/// The same without a copy: it refers into the record. An array of bytes comes as where it lies.
void ReferToField(void* record, const RecordLayout::Field& field, VARIANT& value, void** array);
/// Converts a value to the type of a field and stores it. ResultError for a value that does not convert; the field then
/// stays.
void WriteField(void* record, const RecordLayout::Field& field, const VARIANT& value);

}  // namespace plexel::activex

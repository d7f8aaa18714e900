#pragma once

#include <vector>

#include "cli/json.h"
#include "scancodes/code_sequence.h"
#include "services/element_types.h"

namespace plexel {

/// The fields of a record by their names.
Json ToJson(const udtTactisBaseElement_ScanCodeInfo& record);

/// Takes the members of an object into the fields of the same names. CommandError for an unknown field or a value that
/// does not fit; the record may then be changed in part.
void ChangeFields(udtTactisBaseElement_ScanCodeInfo& record, const Json& fields);

/// Takes "Value" and "NextValue", each if it is there. The bytes given replace the first ones, the others stay.
void ChangeFields(udtTactisBaseElement_TACTIS_SCANCODE& code, const Json& fields);

/// A row of two-digit hexadecimal numbers with blanks between them; CommandError when it is none or longer than `most`.
std::vector<std::uint8_t> TextToBytes(std::string_view text, std::size_t most);

/// A row of bytes, or {"bytes":"...","length":N} with a length of its own.
CodeSequence SequenceOf(const Json& value);

}  // namespace plexel

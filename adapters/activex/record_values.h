#pragma once

#include <PlexelBaseElement.h>
#include <ole2.h>
#include <windows.h>

#include "services/element_types.h"

namespace plexel::activex {

/// The record of an element as hosts know it, and back.

using RecordOutside = ::udtTactisBaseElement_ScanCodeInfo;

udtTactisBaseElement_ScanCodeInfo FromOutside(const RecordOutside& given);
/// Fills a record that holds nothing. std::bad_alloc; then it holds nothing.
void ToOutside(const udtTactisBaseElement_ScanCodeInfo& info, RecordOutside& given);

}  // namespace plexel::activex

#pragma once

#include <ole2.h>
#include <windows.h>

namespace plexel::activex {

/// The value of a variant that may refer to another variant.
const VARIANT& Behind(const VARIANT& value);

/// A copy of a single value, or of what it refers to. DISP_E_TYPEMISMATCH for arrays, records, and what refers to
/// nothing.
HRESULT CopyBehind(const VARIANT& value, VARIANT& copy);

/// What a variant means as a type: itself when it has that type already, with all its bits, and otherwise as automation
/// converts it. ResultError when it does not.
void Convert(const VARIANT& value, VARTYPE type, LCID locale, VARIANT& converted);

}  // namespace plexel::activex

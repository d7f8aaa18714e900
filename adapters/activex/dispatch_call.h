#pragma once

#include <ole2.h>
#include <windows.h>

#include <optional>
#include <span>

#include "win32/variant.h"

namespace plexel::activex {

/// Calls to objects outside, by the names of their members.

/// The number of a member; nothing when the object lacks it.
std::optional<DISPID> MemberOf(IDispatch& object, const wchar_t* name);

/// Calls a member with arguments, which stand in their order reversed. Gives the object's own result.
HRESULT Call(IDispatch& object, DISPID member, WORD kind, std::span<VARIANTARG> reversed, Variant& answer);

/// Fetches a property; false when the object lacks it or fails.
bool FetchProperty(IDispatch& object, const wchar_t* name, Variant& value);
bool FetchProperty(IDispatch& object, DISPID member, Variant& value);

}  // namespace plexel::activex

#pragma once

#include <ole2.h>
#include <windows.h>

#include <string>

#include "win32/bstr.h"

namespace plexel::activex {

/// A text that a call has given, which is freed.
inline std::wstring Taken(BSTR text) {
  std::wstring taken(ContentOf(text));
  SysFreeString(text);
  return taken;
}

}  // namespace plexel::activex

#pragma once

#include <ole2.h>
#include <windows.h>

#include <filesystem>

#include "activex/com_pointer.h"

namespace plexel::activex::module {

/// The library that holds the control.

HINSTANCE Instance();
/// Called when the library is loaded.
void Loaded(HINSTANCE instance);
std::filesystem::path File();

/// Counts what keeps the library in memory: objects that hosts hold, and locks.
void Keep();
void LetGo();
bool IsUsed();

/// Keeps the library while it lives; a base of objects that hosts hold.
class Use {
 public:
  Use() { Keep(); }
  Use(const Use&) { Keep(); }
  Use& operator=(const Use&) = default;
  ~Use() { LetGo(); }
};

/// The type library, out of the file; null when that fails.
ComPointer<ITypeLib> TypeLibrary();

}  // namespace plexel::activex::module

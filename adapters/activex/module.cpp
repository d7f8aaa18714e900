#include "activex/module.h"

#include <atomic>
#include <string>

namespace plexel::activex::module {

namespace {

HINSTANCE theInstance = nullptr;
std::atomic<long> theUses = 0;

}  // namespace

HINSTANCE Instance() { return theInstance; }

void Loaded(HINSTANCE instance) { theInstance = instance; }

std::filesystem::path File() {
  constexpr std::size_t Longest = 32768;
  std::wstring name(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(theInstance, name.data(), static_cast<DWORD>(name.size()));
    if (length < name.size() || name.size() >= Longest) {
      name.resize(length);
      return name;
    }
    name.resize(name.size() * 2);
  }
}

void Keep() { ++theUses; }

void LetGo() { --theUses; }

bool IsUsed() { return theUses != 0; }

ComPointer<ITypeLib> TypeLibrary() {
  ComPointer<ITypeLib> library;
  if (FAILED(LoadTypeLibEx(File().c_str(), REGKIND_NONE, library.Out()))) return nullptr;
  return library;
}

}  // namespace plexel::activex::module

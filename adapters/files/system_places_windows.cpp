#include "files/system_places.h"

#include <windows.h>

#include <string>

namespace plexel {

namespace {

/// The file of a module; of the running program for null.
std::filesystem::path FileOf(HMODULE module) {
  std::wstring name(MAX_PATH, L'\0');
  while (true) {
    const DWORD length = GetModuleFileNameW(module, name.data(), static_cast<DWORD>(name.size()));
    if (length < name.size()) return name.substr(0, length);
    name.resize(name.size() * 2);
  }
}

/// The module that holds this code: the library, or the program that it is linked into.
std::filesystem::path ThisModule() {
  static const char anchor = 0;
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&anchor), &module);
  return FileOf(module);
}

}  // namespace

std::filesystem::path EnvironmentPath(const char* name) {
  const std::wstring wide(name, name + std::char_traits<char>::length(name));
  std::wstring value;
  for (DWORD size = MAX_PATH; size > value.size();) {
    value.resize(size);
    size = GetEnvironmentVariableW(wide.c_str(), value.data(), static_cast<DWORD>(value.size()));
    if (size < value.size()) value.resize(size);
  }
  return value;
}

std::vector<std::filesystem::path> PlacesOfData() {
  return {FileOf(nullptr).parent_path() / "data", ThisModule().parent_path() / "data"};
}

}  // namespace plexel

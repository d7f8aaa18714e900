#include "files/path_text.h"

#include <windows.h>

#include <string_view>
#include <utility>

namespace plexel {

namespace {

/// Ahead of a full name that is written as the system keeps it: then it may be of any length.
constexpr std::wstring_view AsItIs = L"\\\\?\\", AsItIsElsewhere = L"\\\\?\\UNC\\", Elsewhere = L"\\\\";
/// Shorter full names leave room for what programs put behind them within the length that the system takes otherwise.
constexpr std::size_t LongName = 120;

/// The same name, so that the system takes it where it is long.
std::wstring Extended(std::wstring name) {
  if (name.size() < LongName || name.starts_with(AsItIs) || !std::filesystem::path(name).is_absolute()) return name;
  std::wstring full(GetFullPathNameW(name.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(GetFullPathNameW(name.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  if (full.empty()) return name;
  if (full.starts_with(Elsewhere)) return std::wstring(AsItIsElsewhere).append(full, Elsewhere.size());
  return std::wstring(AsItIs).append(full);
}

}  // namespace

std::filesystem::path PathOf(std::string_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  std::wstring name(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, name.data(), static_cast<int>(name.size()));
  return Extended(std::move(name));
}

std::string TextOf(const std::filesystem::path& path) {
  std::wstring_view name = path.native();
  std::wstring elsewhere;
  if (name.starts_with(AsItIsElsewhere)) {
    elsewhere = std::wstring(Elsewhere).append(name.substr(AsItIsElsewhere.size()));
    name = elsewhere;
  } else if (name.starts_with(AsItIs)) {
    name.remove_prefix(AsItIs.size());
  }
  if (name.empty()) return {};
  const int size = static_cast<int>(name.size());
  const int needed = WideCharToMultiByte(CP_UTF8, 0, name.data(), size, nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_UTF8, 0, name.data(), size, text.data(), needed, nullptr, nullptr);
  return text;
}

}  // namespace plexel

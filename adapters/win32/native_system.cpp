#include "win32/native_system.h"

#include <windows.h>

#include <algorithm>

#include "platform/failure.h"
#include "win32/wide_text.h"

namespace plexel {

namespace {

constexpr float TwipsPerInch = 1440;

HKEY KeyOf(std::intptr_t key) { return reinterpret_cast<HKEY>(key); }
HDC ContextOf(std::intptr_t context) { return reinterpret_cast<HDC>(context); }

float TwipsPerPixel(int index) {
  const HDC screen = GetDC(nullptr);
  if (screen == nullptr) throw Failure(FailureKind::Platform, "there is no screen");
  const int pixels = GetDeviceCaps(screen, index);
  ReleaseDC(nullptr, screen);
  return TwipsPerInch / static_cast<float>(pixels);
}

using HtmlHelp = HWND(WINAPI*)(HWND, LPCSTR, UINT, DWORD_PTR);

}  // namespace

std::int32_t NativeRegistry::OpenKey(std::uint32_t root, std::string_view path, std::int32_t options,
                                     std::int32_t access, std::intptr_t& key) {
  HKEY opened = nullptr;
  const auto rootKey = reinterpret_cast<HKEY>(static_cast<std::intptr_t>(static_cast<std::int32_t>(root)));
  const LSTATUS status = RegOpenKeyExA(rootKey, InSystemCodePage(path).c_str(), static_cast<DWORD>(options),
                                       static_cast<REGSAM>(access), &opened);
  key = reinterpret_cast<std::intptr_t>(opened);
  return status;
}

std::int32_t NativeRegistry::SetValue(std::intptr_t key, std::string_view name, std::int32_t reserved,
                                      std::int32_t type, std::string_view text, std::int32_t length) {
  const std::string value(text.substr(0, static_cast<std::size_t>(std::max(length, 0))));
  return RegSetValueExA(KeyOf(key), InSystemCodePage(name).c_str(), static_cast<DWORD>(reserved),
                        static_cast<DWORD>(type), reinterpret_cast<const BYTE*>(value.c_str()),
                        static_cast<DWORD>(value.size()));
}

std::int32_t NativeRegistry::CloseKey(std::intptr_t key) { return RegCloseKey(KeyOf(key)); }

float NativeScreen::TwipsPerPixelX() { return TwipsPerPixel(LOGPIXELSX); }
float NativeScreen::TwipsPerPixelY() { return TwipsPerPixel(LOGPIXELSY); }

std::intptr_t NativeScreen::CreateInformationContext() {
  return reinterpret_cast<std::intptr_t>(CreateICA("DISPLAY", "", "", nullptr));
}

std::int32_t NativeScreen::DeviceCapability(std::intptr_t context, std::int32_t index) {
  return GetDeviceCaps(ContextOf(context), index);
}

void NativeScreen::DeleteContext(std::intptr_t context) { DeleteDC(ContextOf(context)); }

void NativeVersion::Get(OsVersionRecord& record) {
  OSVERSIONINFOA told = {};
  static_assert(sizeof told == 148);
  told.dwOSVersionInfoSize = static_cast<DWORD>(record.size);
  if (GetVersionExA(&told) != FALSE) record.platformId = static_cast<std::int32_t>(told.dwPlatformId);
}

NativeHelp::NativeHelp() : library("hhctrl.ocx") {}

NativeHelp::~NativeHelp() {
  if (module_ != nullptr) FreeLibrary(static_cast<HMODULE>(module_));
}

void NativeHelp::Show(std::intptr_t owner, std::string_view file, std::int32_t command, std::int32_t topic) {
  if (module_ == nullptr) module_ = LoadLibraryW(Wide(library).c_str());
  if (module_ == nullptr) throw Failure(FailureKind::Platform, library + " cannot be loaded");
  const auto show =
      reinterpret_cast<HtmlHelp>(reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(module_), "HtmlHelpA")));
  if (show == nullptr) throw Failure(FailureKind::Platform, library + " has no HtmlHelpA");
  show(reinterpret_cast<HWND>(owner), InSystemCodePage(file).c_str(), static_cast<UINT>(command),
       static_cast<DWORD_PTR>(topic));
}

}  // namespace plexel

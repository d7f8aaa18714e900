#include "host/com_error.h"

#include <ole2.h>
#include <wrl/client.h>

#include <array>
#include <cstdio>

#include "win32/bstr.h"
#include "win32/wide_text.h"

namespace plexel::host {

namespace {

/// What the thread was told by whoever failed last; empty for nothing.
std::string ToldReason() {
  Microsoft::WRL::ComPtr<IErrorInfo> told;
  Bstr words;
  if (GetErrorInfo(0, told.GetAddressOf()) != S_OK || FAILED(told->GetDescription(words.Out()))) return {};
  return NarrowOf(words.Get());
}

std::string SystemsReason(HRESULT result) {
  std::array<wchar_t, 512> words{};
  const DWORD length =
      FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, static_cast<DWORD>(result), 0,
                     words.data(), static_cast<DWORD>(words.size()), nullptr);
  std::wstring_view reason(words.data(), length);
  while (!reason.empty() && (reason.back() == L'\n' || reason.back() == L'\r' || reason.back() == L'.')) {
    reason.remove_suffix(1);
  }
  return Narrow(reason);
}

std::string Message(HRESULT result, const std::string& tried) {
  std::string reason = ToldReason();
  if (reason.empty()) reason = SystemsReason(result);
  std::array<char, 16> number{};
  std::snprintf(number.data(), number.size(), "0x%08lX", static_cast<unsigned long>(result));
  return tried + ": " + reason + (reason.empty() ? "" : " ") + '(' + number.data() + ')';
}

}  // namespace

ComError::ComError(HRESULT result, const std::string& tried)
    : std::runtime_error(Message(result, tried)), result_(result) {}

void Check(HRESULT result, const char* tried) {
  if (FAILED(result)) throw ComError(result, tried);
}

}  // namespace plexel::host

#pragma once

#include <ole2.h>
#include <windows.h>

#include <string>
#include <string_view>
#include <utility>

namespace plexel::activex {

/// No exception crosses the boundary of the control: it becomes a result, and what happened stands in the error
/// information of the thread.

/// What an exception becomes.
struct Trouble {
  HRESULT result = E_UNEXPECTED;
  std::string what;  ///< of the member that it happened in, UTF-8
};

/// A result that a call outside has given, on its way to whoever called in.
class ResultError {
 public:
  explicit ResultError(HRESULT result) : result_(result) {}
  HRESULT Result() const { return result_; }

 private:
  HRESULT result_;
};

/// Throws ResultError for a result that tells a failure.
void Check(HRESULT result);

/// The exception that is being handled, in words; never throws.
Trouble TroubleNow(std::string_view member) noexcept;
/// The program by which the control is known where it tells of errors.
inline constexpr std::wstring_view ErrorSource = L"PlexelBaseElement.ctlPlexelBaseElement";
/// Tells it to the thread, and gives its result.
HRESULT Tell(const Trouble& trouble) noexcept;

/// Runs what a host has called; `member` is its name.
template <typename Procedure>
[[gnu::always_inline]] inline HRESULT Guarded(const std::string_view& member, Procedure&& procedure) noexcept {
  try {
    return std::forward<Procedure>(procedure)();
  } catch (...) {
    return Tell(TroubleNow(member));
  }
}

}  // namespace plexel::activex

#include "activex/guard.h"

#include <PlexelBaseElement.h>
#include <olectl.h>

#include <array>
#include <exception>
#include <new>

#include "activex/com_pointer.h"
#include "platform/failure.h"
#include "win32/bstr.h"

namespace plexel::activex {

namespace {

struct Kind {
  FailureKind kind;
  HRESULT result;
};

// Numbers under which languages of automation know these errors: 6 is their overflow.
constexpr HRESULT NumberedError(int number) { return STD_CTL_SCODE(number); }

constexpr std::array kinds = {
    Kind{FailureKind::Overflow, NumberedError(6)},    Kind{FailureKind::Index, NumberedError(9)},
    Kind{FailureKind::Conversion, NumberedError(13)}, Kind{FailureKind::ObjectNotSet, NumberedError(91)},
    Kind{FailureKind::InvalidCall, NumberedError(5)}, Kind{FailureKind::NoSuchMember, NumberedError(438)},
    Kind{FailureKind::Platform, NumberedError(51)},   Kind{FailureKind::Handler, NumberedError(440)},
};

HRESULT ResultOf(FailureKind kind) {
  for (const Kind& row : kinds) {
    if (row.kind == kind) return row.result;
  }
  return E_FAIL;
}

Trouble Named(HRESULT result, std::string_view member, std::string_view what) {
  return {result, std::string(member).append(": ").append(what)};
}

}  // namespace

void Check(HRESULT result) {
  if (FAILED(result)) throw ResultError(result);
}

Trouble TroubleNow(std::string_view member) noexcept {
  try {
    try {
      throw;
    } catch (const Failure& failure) {
      return Named(ResultOf(failure.Kind()), member, failure.what());
    } catch (const ResultError& error) {
      return Named(error.Result(), member, "a call outside the control has failed");
    } catch (const std::bad_alloc&) {
      return {E_OUTOFMEMORY, {}};
    } catch (const std::exception& error) {
      return Named(E_FAIL, member, error.what());
    } catch (...) {
      return Named(E_UNEXPECTED, member, "an unknown error");
    }
  } catch (...) {
    return {E_OUTOFMEMORY, {}};
  }
}

HRESULT Tell(const Trouble& trouble) noexcept {
  ComPointer<ICreateErrorInfo> made;
  if (FAILED(CreateErrorInfo(made.Out()))) return trouble.result;
  try {
    made->SetGUID(__uuidof(_ctlPlexelBaseElement));
    made->SetSource(Bstr(ErrorSource).Get());
    made->SetDescription(Bstr(std::string_view(trouble.what)).Get());
    SetErrorInfo(0, As<IErrorInfo>(made).Get());
  } catch (const std::bad_alloc&) {  // the result alone tells it then
  }
  return trouble.result;
}

}  // namespace plexel::activex

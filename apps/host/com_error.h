#pragma once

#include <windows.h>

#include <stdexcept>
#include <string>

namespace plexel::host {

/// A call that has failed. `what()` tells what was tried, why it failed in the words of whoever was called, else in the
/// system's, and the result.
class ComError : public std::runtime_error {
 public:
  ComError(HRESULT result, const std::string& tried);
  HRESULT Result() const { return result_; }

 private:
  HRESULT result_;
};

/// Throws ComError for a result that tells a failure; `tried` names the call.
void Check(HRESULT result, const char* tried);

}  // namespace plexel::host

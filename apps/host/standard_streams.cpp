#include "host/standard_streams.h"

#include <windows.h>

#include <cstdio>

namespace plexel::host {

namespace {

bool IsMissing(DWORD stream) {
  const HANDLE handle = GetStdHandle(stream);
  return handle == nullptr || handle == INVALID_HANDLE_VALUE;
}

}  // namespace

void UseConsole() {
  const bool output = IsMissing(STD_OUTPUT_HANDLE), errors = IsMissing(STD_ERROR_HANDLE);
  if ((!output && !errors) || AttachConsole(ATTACH_PARENT_PROCESS) == FALSE) return;
  if (output) (void)std::freopen("CONOUT$", "w", stdout);
  if (errors) (void)std::freopen("CONOUT$", "w", stderr);
}

}  // namespace plexel::host

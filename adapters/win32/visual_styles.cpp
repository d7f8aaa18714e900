#include "win32/visual_styles.h"

#include "win32/window_classes.h"

namespace plexel {

namespace {

/// The number under which a library has its manifest.
constexpr WORD ManifestNumber = 2;

HANDLE MakeContext() {
  ACTCTXW wanted = {};
  wanted.cbSize = sizeof wanted;
  wanted.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
  wanted.hModule = ThisInstance();
  wanted.lpResourceName = MAKEINTRESOURCEW(ManifestNumber);
  return CreateActCtxW(&wanted);
}

}  // namespace

VisualStyles::VisualStyles() : context_(MakeContext()) {}

VisualStyles::~VisualStyles() {
  if (context_ != INVALID_HANDLE_VALUE) ReleaseActCtx(context_);
}

VisualStyles::Scope::Scope(const VisualStyles& styles)
    : active_(styles.context_ != INVALID_HANDLE_VALUE && ActivateActCtx(styles.context_, &cookie_) != FALSE) {}

VisualStyles::Scope::~Scope() {
  if (active_) DeactivateActCtx(0, cookie_);
}

}  // namespace plexel

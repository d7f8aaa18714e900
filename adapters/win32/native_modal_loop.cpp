#include "win32/native_modal_loop.h"

#include <commctrl.h>

#include <algorithm>

#include "platform/clean_up.h"
#include "platform/failure.h"
#include "win32/native_hooks.h"
#include "win32/native_window.h"
#include "win32/wide_text.h"

namespace plexel {

NativeModalLoop::NativeModalLoop() {
  constexpr DWORD Classes = ICC_STANDARD_CLASSES | ICC_TAB_CLASSES | ICC_BAR_CLASSES | ICC_WIN95_CLASSES;
  const VisualStyles::Scope look(styles_);
  const INITCOMMONCONTROLSEX wanted = {sizeof wanted, Classes};
  InitCommonControlsEx(&wanted);
}

NativeModalLoop::~NativeModalLoop() = default;

void NativeModalLoop::Prepare(Form&) {}

void NativeModalLoop::Run(Form& form, Window* owner) {
  std::exception_ptr thrown;
  const HWND below = HandleOf(owner);
  open_.push_back({MakeView(form, below), &thrown});
  {
    std::unique_ptr<FormView> view;
    const AtEnd taken([&] {
      view = std::move(open_.back().view);
      open_.pop_back();
    });
    open_.back().view->Show();
    Pump(*open_.back().view, thrown);
    open_.back().view->Hide();
  }
  if (thrown) std::rethrow_exception(thrown);
  if (form.IsShown()) form.Unload(UnloadMode::CloseBox);
  if (below != nullptr && GetActiveWindow() == nullptr) SetActiveWindow(below);
}

std::unique_ptr<FormView> NativeModalLoop::MakeView(Form& form, HWND owner) {
  const VisualStyles::Scope look(styles_);
  return std::make_unique<FormView>(form, owner, *this);
}

void NativeModalLoop::Pump(const FormView& view, const std::exception_ptr& thrown) {
  while (view.Model().IsShown() && !thrown && view.Window() != nullptr) {
    MSG message;
    if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) == FALSE) {
      SyncAll();
      WaitMessage();
      continue;
    }
    if (message.message == WM_QUIT) {  // for the loop around this one, too
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    // A timer comes when nothing else waits: it finds the windows in line with the model too.
    if (message.message == WM_TIMER) SyncAll();
    if (open_.back().view->TakeMessage(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void NativeModalLoop::Closed(Form& form) {
  if (FormView* const view = ViewOf(form)) view->Hide();
}

void NativeModalLoop::Popup(Form& form, MenuItem& menu, bool placed, float x, float y) {
  FormView* const view = ViewOf(form);
  if (view == nullptr) throw Failure(FailureKind::InvalidCall, form.Name() + " is not shown");
  view->OpenMenu(menu, placed, x, y);
}

FormView* NativeModalLoop::ViewOf(const Form& form) const {
  for (const Open& one : open_) {
    if (&one.view->Model() == &form) return one.view.get();
  }
  return nullptr;
}

HWND NativeModalLoop::HandleOf(const Window* window) const {
  for (const Open& one : open_) {
    if (static_cast<const Window*>(&one.view->Model()) == window) return one.view->Window();
  }
  const auto* const native = dynamic_cast<const NativeWindow*>(window);
  const HWND handle = native == nullptr ? nullptr : native->Handle();
  return handle == nullptr ? nullptr : GetAncestor(handle, GA_ROOT);
}

/// The windows of later forms belong to those of earlier ones, and go with them.
void NativeModalLoop::TakeAllAway() {
  while (!open_.empty()) {
    const auto found =
        std::find_if(open_.begin(), open_.end(), [](const Open& one) { return one.view->Window() != nullptr; });
    if (found == open_.end()) return;
    DestroyWindow(found->view->Window());
  }
}

FormView* NativeModalLoop::Topmost() const { return open_.empty() ? nullptr : open_.back().view.get(); }

void NativeModalLoop::SyncAll() {
  if (syncing_) return;
  syncing_ = true;
  const AtEnd synced([this] { syncing_ = false; });
  for (std::size_t place = 0; place < open_.size(); ++place) {
    if (open_[place].view->Model().IsShown()) open_[place].view->Sync();
  }
}

bool NativeModalLoop::Captures() const { return KeyboardHookRuns(); }

void NativeModalLoop::Report(const std::string& what) {
  OutputDebugStringW((L"Plexel: " + Wide(what) + L"\n").c_str());
  if (!onFailure || reporting_) return;
  reporting_ = true;
  const AtEnd reported([this] { reporting_ = false; });
  onFailure(what);
}

void NativeModalLoop::Abandon(std::exception_ptr thrown) {
  if (open_.empty()) return;
  if (!*open_.back().thrown) *open_.back().thrown = std::move(thrown);
  PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
}

}  // namespace plexel

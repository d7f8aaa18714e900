#include "forms/form.h"

#include <algorithm>

#include "platform/clean_up.h"
#include "platform/platform.h"

namespace plexel {

Form::Form(std::string_view name) : name_(name) {}

void Form::OnKeyDown(std::int16_t&, std::int16_t) {}
void Form::OnKeyPress(std::int16_t&) {}

Control* Form::Find(std::string_view fullName) const {
  const auto control = std::find_if(controls_.begin(), controls_.end(), [&](const Control* candidate) {
    return fullName.starts_with(candidate->Name()) && candidate->FullName() == fullName;
  });
  return control == controls_.end() ? nullptr : *control;
}

void Form::Focus(Control* control) {
  const std::string_view reason = control == nullptr     ? std::string_view()
                                  : control->Focusable() ? control->OwnHindrance()
                                                         : "takes no focus";
  if (!reason.empty()) {
    throw Failure(FailureKind::InvalidCall, control->FullName() + ' ' + std::string(reason));
  }
  if (control == focus_) return;
  Control* const previous = focus_;
  focus_ = control;
  armed_ = nullptr;
  if (!loaded_) return;
  if (previous != nullptr) Raise(previous->OnLostFocus);
  if (control != nullptr && focus_ == control) Raise(control->OnGotFocus);
}

void Form::ShowModal(Window* owner) {
  if (loaded_) throw Failure(FailureKind::InvalidCall, name_ + " is shown already");
  ModalLoop& loop = Platform::Current().Modal();
  loop.Prepare(*this);
  const auto abandon = [this] {
    Forget();
    OnAbandoned();
  };
  OrUndo([&] { LoadAndRun(loop, owner); }, abandon);
  Forget();
}

void Form::LoadAndRun(ModalLoop& loop, Window* owner) {
  loaded_ = true;
  OnLoad();
  if (loaded_ && (focus_ == nullptr || !focus_->CanTakeFocus())) {
    const std::vector<Control*> order = TabOrder();
    if (!order.empty()) Focus(order.front());
  }
  if (!loaded_) return;
  shown_ = true;
  loop.Run(*this, owner);
}

void Form::Unload(UnloadMode mode) {
  if (!loaded_ || unloading_) return;
  unloading_ = true;
  {
    const AtEnd unloaded([this] { unloading_ = false; });
    OnQueryUnload(mode);
    OnUnload();
  }
  End();
}

void Form::End() {
  const bool wasShown = shown_;
  Forget();
  if (wasShown) Platform::Current().Modal().Closed(*this);
}

void Form::Forget() {
  loaded_ = shown_ = false;
  focus_ = nullptr;
  armed_ = nullptr;
  openPopup_ = nullptr;
}

void Form::PopupMenu(MenuItem& menu) { Popup(menu, false, 0, 0); }
void Form::PopupMenu(MenuItem& menu, float x, float y) { Popup(menu, true, x, y); }

void Form::Popup(MenuItem& menu, bool placed, float x, float y) {
  ModalLoop& loop = Platform::Current().Modal();
  openPopup_ = &menu;
  OrUndo([&] { loop.Popup(*this, menu, placed, x, y); }, [this] { openPopup_ = nullptr; });
}

Description Form::Describe() const {
  std::vector<std::string> names;
  names.reserve(controls_.size());
  for (const Control* control : controls_) names.push_back(control->FullName());
  Description description;
  description.emplace_back("Name", name_);
  description.emplace_back("Caption", caption_);
  description.emplace_back("Left", static_cast<double>(left_));
  description.emplace_back("Top", static_cast<double>(top_));
  description.emplace_back("Width", static_cast<double>(width_));
  description.emplace_back("Height", static_cast<double>(height_));
  description.emplace_back("KeyPreview", keyPreview_);
  description.emplace_back("Focus", focus_ == nullptr ? std::string() : focus_->FullName());
  description.emplace_back("Controls", std::move(names));
  return description;
}

}  // namespace plexel

#include "editor/trial_mode.h"

#include "editor/panel_view.h"
#include "editor/trial_dock.h"
#include "editor/trial_layer.h"

namespace plexel {

TrialMode::TrialMode(PanelView& view, TrialDock& dock, Selection& selection)
    : view_(view), dock_(dock), selection_(selection) {
  const TrialLayer::Picture picture = {[this] { return view_.Origin(); }, [this] { return document_->Zoom() / 100.0; }};
  layer_ = std::make_unique<TrialLayer>(trial_, &view_, picture);
  layer_->hide();
  layer_->current = [this] { return selection_.Current(); };
  layer_->onCurrent = [this](int place) { selection_.Only(place); };
  layer_->onTab = [this](bool next) {
    const int count = selection_.Count();
    if (count > 0) selection_.Only((selection_.Current() + (next ? 1 : count - 1)) % count);
  };
  layer_->onEvent = [this](const Trial::Event&) { Changed(); };
  layer_->onEscape = [this] { onLeave(); };
  dock_.onLeave = [this] { onLeave(); };
  dock_.onLetGoOfAll = [this] { LetGoOfAll(); };
  dock_.onClear = [this] {
    trial_.Clear();
    Changed();
  };
}

TrialMode::~TrialMode() = default;

void TrialMode::Enter(const PanelDocument& document, std::int32_t layer) {
  document_ = &document;
  trial_ = Trial();
  trial_.ChooseLayer(layer);
  layer_->Show(document_);
  layer_->show();
  layer_->setFocus();
  dock_.show();
  dock_.raise();
  Changed();
}

void TrialMode::Leave() {
  view_.setFocus();  // what hides with the keyboard passes it on, as Tab does
  layer_->Show(nullptr);
  layer_->hide();
  dock_.hide();
  document_ = nullptr;
  trial_ = Trial();
}

void TrialMode::ChooseLayer(std::int32_t layer) {
  trial_.ChooseLayer(layer);
  Changed();
}

void TrialMode::LetGoOfAll() {
  layer_->Forget();
  trial_.LetGoOfAll();
  Changed();
}

void TrialMode::Retranslate() {
  dock_.Retranslate();
  if (IsOn()) dock_.Show(trial_, *document_);
}

void TrialMode::Changed() {
  layer_->update();
  dock_.Show(trial_, *document_);
  if (onChange) onChange();
}

}  // namespace plexel

#pragma once

#include <functional>
#include <memory>

#include "editor/selection.h"
#include "project/trial.h"

namespace plexel {

class PanelDocument;
class PanelView;
class TrialDock;
class TrialLayer;

/// The mode of the picture in which its elements are pressed instead of configured.
class TrialMode {
 public:
  /// All of them must outlive the mode.
  TrialMode(PanelView& view, TrialDock& dock, Selection& selection);
  ~TrialMode();
  TrialMode(const TrialMode&) = delete;
  TrialMode& operator=(const TrialMode&) = delete;

  bool IsOn() const { return document_ != nullptr; }
  /// Begins anew on a document, which must not go before Leave.
  void Enter(const PanelDocument& document, std::int32_t layer);
  void Leave();
  /// The layer that elements are tried on while none calls another, 1 to 4.
  void ChooseLayer(std::int32_t layer);
  void LetGoOfAll();
  /// Takes the texts of the language in force.
  void Retranslate();
  const Trial& State() const { return trial_; }
  TrialLayer& Layer() const { return *layer_; }

  /// The user wants to leave the mode.
  std::function<void()> onLeave;
  /// Another layer may be in force.
  std::function<void()> onChange;

 private:
  void Changed();

  PanelView& view_;
  TrialDock& dock_;
  Selection& selection_;
  Trial trial_;
  std::unique_ptr<TrialLayer> layer_;
  const PanelDocument* document_ = nullptr;
};

}  // namespace plexel

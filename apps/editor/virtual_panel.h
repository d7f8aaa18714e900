#pragma once

#include <QWidget>
#include <functional>

#include "editor/trial_layer.h"
#include "project/panel_document.h"
#include "project/trial.h"

class QLabel;
class QPushButton;

namespace plexel {

/// A panel in a window that stays on top and never takes the focus: what its keys send goes to the program in front. A
/// key that the panel leaves down stays down, until it is let go of or the window closes.
class VirtualPanel : public QWidget {
 public:
  /// The document must outlive the panel. `send` carries a key, by its code of the kernel's input layer, to the
  /// desktop.
  VirtualPanel(const PanelDocument& document, std::int32_t layer, std::function<void(int evdev, bool down)> send);

  /// Takes the texts of the language in force.
  void Retranslate();
  /// Tells that the desktop takes no keys any more.
  void Lost();
  /// All that is held or down comes up.
  void LetGoOfAll();
  const Trial& State() const { return trial_; }
  TrialLayer& Layer() const { return *layer_; }
  /// What is said below the picture.
  QString Words() const;
  std::function<void()> onClose;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Carry(const Trial::Event& event);
  void ShowState();

  const PanelDocument& document_;
  std::function<void(int evdev, bool down)> send_;
  Trial trial_;
  TrialLayer* layer_ = nullptr;
  QLabel *state_ = nullptr, *down_ = nullptr, *words_ = nullptr;
  QPushButton* letGo_ = nullptr;
  QStringList notCarried_;  ///< of the last event
  bool lost_ = false;
};

}  // namespace plexel

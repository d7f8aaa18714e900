#pragma once

#include <functional>
#include <span>

#include "editor/late_dock.h"
#include "editor/overview_model.h"
#include "editor/selection.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace plexel {

class KeyListener;
class OverviewTable;

/// A dock with all elements and layers of the project as a table, and with what finds lines in it: words, or a key
/// that is pressed. While it is hidden it does nothing.
class OverviewPanel : public LateDock {
 public:
  /// Selection and problems must outlive it.
  OverviewPanel(Selection& selection, const LiveProblems& problems, QWidget* parent);

  /// Takes a document, which must outlive its use here; null takes it away.
  void Show(PanelDocument* document);
  /// Elements have changed by a step, or their problems have; the places ascend.
  void Changed(std::span<const std::size_t> places);
  /// All problems are other ones.
  void ProblemsReset();
  void Retranslate();
  /// Comes into sight, ready for words.
  void Find();
  /// Comes into sight and hears a key.
  void FindByPressing();

  OverviewModel& Model() { return model_; }
  /// Once it has been shown.
  OverviewTable& Table() { return *table_; }

  /// What is found, by places; empty while nothing is looked for.
  std::function<void(const std::vector<int>& places)> onFound;
  /// Runs a change of one element as a step, and sees to its failures.
  std::function<void(StepKind kind, int place, const std::function<void()>& act)> change;

 protected:
  void MakeContent() override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  QWidget* MakeTools();
  void NameContent();
  void LookForWords();
  void LookForKeys(const std::vector<KeyCode>& keys);
  void FillKeys();
  void ShowFound();
  void SetNote(int place, const QString& note);
  void AskLed(int place, std::int32_t layer, enumLedType type);
  /// The element that shows an LED function in a layer, null for none.
  const ctlPlexelBaseElement* Shower(std::int32_t layer, enumLedType type) const;
  bool AgreesToTwice(const ctlPlexelBaseElement& other, std::int32_t layer, enumLedType type);

  OverviewModel model_;
  Selection& selection_;
  PanelDocument* document_ = nullptr;
  bool stale_ = true;               ///< the model does not know the document yet
  QString sought_;                  ///< the keys that are looked for, by name
  OverviewTable* table_ = nullptr;  ///< and those below: null until it is first shown
  QLineEdit* words_ = nullptr;
  QToolButton* press_ = nullptr;
  QComboBox* pick_ = nullptr;
  QLabel* count_ = nullptr;
  KeyListener* listener_ = nullptr;
};

}  // namespace plexel

#pragma once

#include <QDockWidget>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "editor/live_problems.h"
#include "editor/selection.h"
#include "project/panel_document.h"

class QGridLayout;
class QPlainTextEdit;
class QVBoxLayout;

namespace plexel {

class TextLine;

/// A dock that tells all of the selected element: kind, numbers, layers with the room that they have left, problems,
/// and the notes, which are edited in place. Of several elements it tells what they share. Every entry opens where it
/// is changed.
class Inspector : public QDockWidget {
 public:
  /// Selection and problems must outlive all use of the inspector.
  Inspector(Selection& selection, const LiveProblems& problems, QWidget* parent);
  /// Null takes the document away. Notes that are being typed are given up.
  void Show(PanelDocument* document);
  /// Takes over what the elements hold now.
  void Refresh();
  /// Takes the texts of the language in force.
  void Retranslate();
  /// Stores the notes that were typed, as one step.
  void Commit();
  /// Takes the keyboard.
  void Enter();

  QPlainTextEdit& Notes() const { return *notes_; }
  /// What it tells, an entry a line.
  QString Content() const;
  /// The most characters that notes may be typed to.
  static constexpr int MostNotes = 1000;

  std::function<void()> onConfigure, onProperties;
  std::function<void(int place, const Problem& problem)> onProblem;
  std::function<void(int place, const std::string& notes)> onNotes;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Row {
    TextLine *caption = nullptr, *value = nullptr;
  };
  struct Layer {
    TextLine *heading = nullptr, *room = nullptr;
    Row press, release, led;
  };
  void MakeContent();
  Layer MakeLayer(QGridLayout& grid, int row);
  void ShowElements();
  void ShowLayer(std::int32_t layer);
  void ShowProblems();
  void AddProblem(std::size_t line, int place, const Problem& problem);
  void ShowNotes();
  void LimitNotes();
  /// What all elements meant have in common, in words; without a value where they differ.
  template <typename Get, typename Words>
  void ShowShared(TextLine& line, Get&& get, Words&& words) const;
  const ctlPlexelBaseElement& At(int place) const {
    return *document_->Places()[static_cast<std::size_t>(place)].element;
  }

  Selection& selection_;
  const LiveProblems& problems_;
  PanelDocument* document_ = nullptr;
  std::vector<int> places_;  ///< those that are told of
  QWidget* body_ = nullptr;
  TextLine *title_ = nullptr, *kind_ = nullptr, *numbers_ = nullptr, *nothing_ = nullptr;
  TextLine *problemsTitle_ = nullptr, *notesTitle_ = nullptr;
  std::array<Layer, LayerCount> layers_{};
  std::vector<TextLine*> problemLines_;
  QVBoxLayout* problemBox_ = nullptr;
  QPlainTextEdit* notes_ = nullptr;
  int notesPlace_ = -1;      ///< whose notes stand in the field, -1 for none that can be edited
  std::string storedNotes_;  ///< as the element holds them
  QString typed_;            ///< what stood in the field before the last key
};

}  // namespace plexel

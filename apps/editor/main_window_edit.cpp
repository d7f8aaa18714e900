#include "editor/main_window.h"

#include <QAction>

#include "editor/step_text.h"
#include "editor/trial_mode.h"

namespace plexel {

namespace {

/// A menu entry that names a step, whose texts are shown as they are.
QString Entry(Text pattern, const Step& step) { return Say(pattern).arg(StepText(step.name).replace('&', "&&")); }

}  // namespace

void MainWindow::Undo() {
  if (document_) document_->Undo();
}

void MainWindow::Redo() {
  if (document_) document_->Redo();
}

void MainWindow::ShowHistory() {
  const bool canUndo = document_ && document_->Steps().CanUndo(), canRedo = document_ && document_->Steps().CanRedo();
  undo_->setEnabled(canUndo && !trial_->IsOn());
  redo_->setEnabled(canRedo && !trial_->IsOn());
  undo_->setText(canUndo ? Entry(Text::UndoStep, document_->Steps().ToUndo()) : Say(Text::Undo));
  redo_->setText(canRedo ? Entry(Text::RedoStep, document_->Steps().ToRedo()) : Say(Text::Redo));
}

}  // namespace plexel

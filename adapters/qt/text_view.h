#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "qt/control_view.h"

namespace plexel {

/// A text box of one line. The widget edits; each change of text or caret goes to the model, whose word is the last.
class LineView : public ControlView {
 public:
  LineView(TextBox& model, QWidget& parent, UserActs& acts);
  QWidget& Outer() const override { return *edit_; }
  bool EditsItself() const override { return true; }

 protected:
  void SyncMore() override;

 private:
  void HandOver();

  TextBox& model_;
  UserActs& acts_;
  QLineEdit* edit_;
  bool syncing_ = false;
};

/// A text box of several lines.
class NoteView : public ControlView {
 public:
  NoteView(TextBox& model, QWidget& parent, UserActs& acts);
  QWidget& Outer() const override { return *edit_; }
  QWidget& MouseWidget() const override { return *edit_->viewport(); }
  bool EditsItself() const override { return true; }

 protected:
  void SyncMore() override;

 private:
  void HandOver();

  TextBox& model_;
  UserActs& acts_;
  QPlainTextEdit* edit_;
  bool syncing_ = false;
};

/// The view of a text box, by its number of lines.
std::unique_ptr<ControlView> MakeTextView(Control& control, QWidget& parent, UserActs& acts);

}  // namespace plexel

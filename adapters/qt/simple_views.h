#pragma once

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "qt/control_view.h"

namespace plexel {

class ButtonView : public ControlView {
 public:
  ButtonView(CommandButton& model, QWidget& parent, UserActs& acts);
  QWidget& Outer() const override { return *button_; }
  bool ClicksItself() const override { return true; }

 protected:
  void SyncMore() override;

 private:
  CommandButton& model_;
  QPushButton* button_;
  std::string picture_;
};

class OptionView : public ControlView {
 public:
  OptionView(OptionButton& model, QWidget& parent, UserActs& acts);
  QWidget& Outer() const override { return *button_; }
  bool ClicksItself() const override { return true; }

 protected:
  void SyncMore() override;

 private:
  OptionButton& model_;
  QRadioButton* button_;
};

class LabelView : public ControlView {
 public:
  LabelView(Label& model, QWidget& parent, UserActs& acts);
  QWidget& Outer() const override { return *label_; }

 protected:
  void SyncMore() override;

 private:
  QWidget* Named() const;

  Label& model_;
  QLabel* label_;
};

class PictureWidget;
class TitledFrame;

class PictureView : public ControlView {
 public:
  PictureView(PictureBox& model, QWidget& parent, UserActs& acts);
  QWidget& Outer() const override;

 protected:
  void SyncMore() override;

 private:
  PictureBox& model_;
  PictureWidget* widget_;
};

/// A group with a title, a plain area, or, when it is no higher than a line, a rule.
class FrameView : public ControlView {
 public:
  FrameView(Frame& model, QWidget& parent, UserActs& acts);
  QWidget& Outer() const override { return *widget_; }

 protected:
  void SyncMore() override;

 private:
  Frame& model_;
  QWidget* widget_ = nullptr;
  TitledFrame* titled_ = nullptr;
};

class StatusView : public ControlView {
 public:
  StatusView(StatusBar& model, QWidget& parent, UserActs& acts);
  QWidget& Outer() const override { return *label_; }

 protected:
  void SyncMore() override;

 private:
  StatusBar& model_;
  QLabel* label_;
};

class ShapeView : public ControlView {
 public:
  ShapeView(Shape& model, QWidget& parent, UserActs& acts);
  QWidget& Outer() const override { return *widget_; }

 protected:
  void SyncMore() override;

 private:
  Shape& model_;
  QWidget* widget_;
};

/// The toolkit's alignment of a text of the model.
Qt::Alignment AlignmentOf(TextAlignment alignment);

}  // namespace plexel

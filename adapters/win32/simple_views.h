#pragma once

#include "forms/controls.h"
#include "win32/control_view.h"

namespace plexel {

class ButtonView : public ControlView {
 public:
  ButtonView(CommandButton& model, HWND parent, ViewFrame& frame);
  ~ButtonView() override;
  bool ClicksItself() const override { return true; }
  void Notified(UINT code) override;
  void Rescaled() override;

 protected:
  void SyncMore() override;

 private:
  void ShowPicture();

  CommandButton& model_;
  std::string picture_;
  HICON icon_ = nullptr;
  bool marked_ = false;
};

class OptionView : public ControlView {
 public:
  OptionView(OptionButton& model, HWND parent, ViewFrame& frame);
  bool ClicksItself() const override { return true; }
  void Notified(UINT code) override;

 protected:
  void SyncMore() override;

 private:
  OptionButton& model_;
};

class LabelView : public ControlView {
 public:
  LabelView(Label& model, HWND parent, ViewFrame& frame);
  HBRUSH Colours(HDC context) override;
  std::optional<LRESULT> Ahead(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  void SyncMore() override;
  FontLook Look() const override;

 private:
  Label& model_;
};

class PictureView : public ControlView {
 public:
  PictureView(PictureBox& model, HWND parent, ViewFrame& frame);
  std::optional<LRESULT> Ahead(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  void SyncMore() override;

 private:
  void Paint() const;

  PictureBox& model_;
  std::string shown_;
};

/// A group with a title, a plain area, or, when it is no higher than a line, a rule.
class FrameView : public ControlView {
 public:
  FrameView(Frame& model, HWND parent, ViewFrame& frame);
  /// The box with the title, null for a frame without.
  HWND Box() const { return box_; }
  void Rescaled() override;

 protected:
  void SyncMore() override;
  void PlaceAt(const RECT& place) override;

 private:
  Frame& model_;
  HWND box_ = nullptr;
  std::wstring title_;
};

class StatusView : public ControlView {
 public:
  StatusView(StatusBar& model, HWND parent, ViewFrame& frame);

 protected:
  void SyncMore() override;

 private:
  StatusBar& model_;
};

}  // namespace plexel

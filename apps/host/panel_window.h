#pragma once

#include <windows.h>

#include <memory>

#include "host/message_window.h"
#include "host/panel_picture.h"

namespace plexel::host {

/// What the controls lie on: a window as large as the panel, which shows its picture.
class GroundWindow : public MessageWindow {
 public:
  explicit GroundWindow(HWND parent);
  /// Null for an empty ground.
  void Show(std::unique_ptr<PanelPicture> picture);
  SIZE Size() const;

 protected:
  LRESULT Message(UINT message, WPARAM wide, LPARAM wider) override;

 private:
  std::unique_ptr<PanelPicture> picture_;
};

/// The part of the program's window in which the panel can be scrolled.
class PanelWindow : public MessageWindow {
 public:
  explicit PanelWindow(HWND parent);

  HWND Ground() const { return ground_->Handle(); }
  /// Shows a picture, from its upper left corner; null for none.
  void Show(std::unique_ptr<PanelPicture> picture);
  /// Scrolls as little as brings a place of the ground into sight.
  void Reveal(const RECT& place);

 protected:
  LRESULT Message(UINT message, WPARAM wide, LPARAM wider) override;

 private:
  /// Fits bars and ground to the sizes of window and panel.
  void LayOut();
  void LayOut(int bar, int inside, int whole);
  void Scroll(int bar, int code);
  void Wheel(int bar, int turned);
  void ScrollTo(int bar, int position);

  std::unique_ptr<GroundWindow> ground_;
  bool layingOut_ = false;
};

}  // namespace plexel::host

#pragma once

#include <windows.h>

#include "files/panel_file.h"

namespace plexel::host {

/// Pixels at zoom 100 as pixels of a screen, and places so.
int OnScreen(int pixels, int dpi);
RECT OnScreen(const PanelBox& box, int dpi);

/// The picture of a panel for a screen, without what its elements show.
class PanelPicture {
 public:
  PanelPicture(const Panel& panel, int dpi);
  ~PanelPicture();
  PanelPicture(const PanelPicture&) = delete;
  PanelPicture& operator=(const PanelPicture&) = delete;

  SIZE Size() const { return size_; }
  /// Draws it with its corner at 0, 0.
  void DrawOn(HDC device) const;

 private:
  SIZE size_;
  HDC memory_;
  HBITMAP bits_;
  HGDIOBJ before_;
};

}  // namespace plexel::host

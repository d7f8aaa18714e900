#pragma once

#include <windows.h>

#include <map>
#include <tuple>

#include "win32/scale.h"

namespace plexel {

/// How letters look. `points` is their size, 0 for that of dialogs.
struct FontLook {
  bool bold = false, underlined = false;
  float points = 0;
};

/// The fonts and brushes of a form, each made once.
class DrawingTools {
 public:
  DrawingTools() = default;
  ~DrawingTools();
  DrawingTools(const DrawingTools&) = delete;
  DrawingTools& operator=(const DrawingTools&) = delete;

  HFONT Font(const FontLook& look, const Scale& scale);
  HBRUSH Brush(COLORREF colour);

 private:
  std::map<std::tuple<bool, bool, int>, HFONT> fonts_;
  std::map<COLORREF, HBRUSH> brushes_;
};

}  // namespace plexel

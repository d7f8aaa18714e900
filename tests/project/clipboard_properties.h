#pragma once

#include <memory>
#include <string_view>

#include "project/panel_document.h"
#include "world/world.h"

namespace plexel {

/// A project in memory, and what must hold when any text comes to it from the clipboard.
class Clipboard {
 public:
  Clipboard();
  /// Definitions come out of the text, or a FileError with a reason. What is pasted is what is copied from there, is
  /// one step, and gone when that is undone. A property that does not hold ends in std::logic_error.
  void Check(std::string_view text);

 private:
  World world_;
  std::unique_ptr<PanelDocument> document_;
};

}  // namespace plexel

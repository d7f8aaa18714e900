#pragma once

#include <string>

#include "files/panel_file.h"

namespace plexel {

/// The panel of a document, with the text that it was read from.
struct DocumentPanel {
  std::string text;
  Panel panel;
};

}  // namespace plexel

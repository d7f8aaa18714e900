#pragma once

#include <QString>
#include <string>

namespace plexel {

/// A caption of the model for a widget that draws a letter behind "&" underlined: the letter of the caption, and no
/// other, is marked.
QString WithLetter(const std::string& caption);

/// A text of any length for a tool tip: shown as it stands, in lines that a screen has room for. They end behind a
/// blank or a closing bracket where there is one.
QString ToolTipOf(const QString& text);

}  // namespace plexel

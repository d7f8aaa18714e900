#pragma once

#include <QString>
#include <string>

#include "project/panel_document.h"

namespace plexel {

/// A report of a project as a PDF document on A4, in the user's language: the panel's picture with a legend of what
/// each key and LED does, the table of all elements and layers in which something stands, then the problems. `name` is
/// how people call the project.
std::string ReportPdf(const PanelDocument& document, const QString& name);

}  // namespace plexel

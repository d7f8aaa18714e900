#pragma once

#include <string>

#include "project/report.h"

namespace plexel {

/// A report as one HTML file that needs nothing else and runs nothing: the panel's picture with a legend of what each
/// key and LED does, the table of all elements and layers in which something stands, then the problems. Made for A4. No
/// text of a file becomes mark-up.
std::string ReportHtml(const Report& report);

}  // namespace plexel

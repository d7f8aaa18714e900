#pragma once

#include <string>

#include "project/report.h"

namespace plexel {

/// The table of a report as CSV (RFC 4180) in UTF-8 with a byte order mark, lines ending in CR LF: a row with the names
/// of the columns, then one row an element and layer. A field that a spreadsheet could take for a formula gets an
/// apostrophe in front; broken UTF-8 is shown as U+FFFD.
std::string ReportCsv(const Report& report);

}  // namespace plexel

#pragma once

#include <string>

namespace plexel::dialogs {

/// Every dialog as it is designed, before it is loaded: a line for the form and one for each control, with all that
/// they are given, places and sizes in twips.
std::string DesignOfAll();

}  // namespace plexel::dialogs

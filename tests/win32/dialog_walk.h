#pragma once

#include <functional>
#include <string>

namespace plexel {

class Desk;

/// Opens every dialog in its states, and has a look taken at each.
void WalkDialogs(Desk& desk, const std::function<void(const std::string& name)>& look);

}  // namespace plexel

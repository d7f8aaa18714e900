#pragma once

namespace plexel::host {

/// A program with windows has no standard output by itself where it is started from a console: from now on what it
/// writes stands there. What is redirected stays so.
void UseConsole();

}  // namespace plexel::host

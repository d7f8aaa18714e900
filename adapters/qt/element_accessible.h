#pragma once

namespace plexel {

/// Tells helping programs of every element widget: a button with its legend and its definitions.
void MakeElementsAccessible();

}  // namespace plexel

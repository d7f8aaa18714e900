#pragma once

#include "forms/form_directory.h"

namespace plexel {

/// Adds a maker for every dialog of the component, under the dialog's name.
void RegisterForms(FormDirectory& directory);

}  // namespace plexel

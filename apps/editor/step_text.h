#pragma once

#include <QString>

#include "project/history.h"

namespace plexel {

/// The name of a step in the user's language.
QString StepText(const StepName& name);

}  // namespace plexel

#pragma once

#include <QString>
#include <string>

#include "project/problem.h"

namespace plexel {

/// "3 errors, 1 warning"; what is none is not named, unless both are.
QString CountText(const ProblemCounts& counts);

QString LevelText(ProblemLevel level);
/// "1", or "1, 3" of a problem that is about several layers; empty for one that is about none.
QString LayersText(const Problem& problem);
/// "layer 1", "layers 1, 3"; empty for a problem that is about no layer.
QString LayersInWords(const Problem& problem);
/// The name of a level's picture.
std::string ProblemPicture(ProblemLevel level);

}  // namespace plexel

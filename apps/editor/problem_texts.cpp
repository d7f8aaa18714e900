#include "editor/problem_texts.h"

#include <QStringList>

#include "editor/texts.h"

namespace plexel {

namespace {

QString Counted(std::size_t count, Text one, Text many) { return count == 1 ? Say(one) : Say(many).arg(count); }

}  // namespace

QString CountText(const ProblemCounts& counts) {
  QStringList told;
  if (counts.errors > 0) told.append(Counted(counts.errors, Text::OneError, Text::Errors));
  if (counts.warnings > 0) told.append(Counted(counts.warnings, Text::OneWarning, Text::Warnings));
  return told.isEmpty() ? Say(Text::NoProblems) : told.join(", ");
}

QString LevelText(ProblemLevel level) {
  return Say(level == ProblemLevel::Error ? Text::LevelError : Text::LevelWarning);
}

QString LayersText(const Problem& problem) {
  QStringList layers;
  for (const std::int32_t layer : problem.layers) layers.append(QString::number(layer));
  return layers.join(", ");
}

QString LayersInWords(const Problem& problem) {
  if (problem.layers.empty()) return {};
  return Say(problem.layers.size() == 1 ? Text::ProblemLayer : Text::ProblemLayers).arg(LayersText(problem));
}

std::string ProblemPicture(ProblemLevel level) {
  return level == ProblemLevel::Error ? "problem-error" : "problem-warning";
}

}  // namespace plexel

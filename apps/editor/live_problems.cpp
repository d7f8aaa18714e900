#include "editor/live_problems.h"

#include <QStringList>

#include "element/ctlPlexelBaseElement.h"
#include "project/panel_document.h"
#include "qt/units.h"

namespace plexel {

void LiveProblems::Show(const PanelDocument* document) {
  document_ = document;
  Forget({});
  if (document_ != nullptr) {
    try {
      problems_ = std::make_unique<Problems>(*document_);
    } catch (const std::exception& failure) {
      Forget(failure.what());
    }
  }
  if (onReset) onReset();
}

void LiveProblems::Forget(const QString& failure) {
  problems_.reset();
  failure_ = failure;
}

void LiveProblems::Changed(std::span<const std::size_t> places) {
  if (document_ == nullptr) return;
  if (!problems_) return Show(document_);
  std::vector<std::size_t> touched;
  try {
    touched = problems_->Recheck(places);
  } catch (const std::exception& failure) {
    Forget(failure.what());
    if (onReset) onReset();
    return;
  }
  if (onChanged) onChanged(touched);
}

void LiveProblems::Retranslate() {
  words_ = ProblemWordsInForce();
  Show(document_);
}

ProblemCounts LiveProblems::Counts() const {
  return problems_ ? ProblemCounts{problems_->Errors(), problems_->Warnings()} : ProblemCounts();
}

ProblemCounts LiveProblems::CountsOf(int place) const {
  return problems_ ? problems_->CountsOf(static_cast<std::size_t>(place)) : ProblemCounts();
}

std::optional<ProblemLevel> LiveProblems::LevelOf(int place) const {
  if (place < 0 || place >= PlaceCount()) return std::nullopt;
  const ProblemCounts counts = CountsOf(place);
  if (counts.errors > 0) return ProblemLevel::Error;
  return counts.warnings > 0 ? std::optional(ProblemLevel::Warning) : std::nullopt;
}

std::vector<Problem> LiveProblems::Of(int place) const {
  return problems_ ? problems_->Of(static_cast<std::size_t>(place)) : std::vector<Problem>();
}

std::string LiveProblems::PlainText(const Problem& problem) const { return problems_->Text(problem, words_); }

QString LiveProblems::TextOf(const Problem& problem) const { return WithVisibleControls(ToQt(PlainText(problem))); }

QString LiveProblems::WholeText(const Problem& problem) const {
  QStringList ahead = {LevelText(RowOf(problem.rule).level), LayersInWords(problem)};
  ahead.removeAll(QString());
  return ahead.join(", ") + ": " + TextOf(problem);
}

QString LiveProblems::ElementOf(const Problem& problem) const {
  return WithVisibleControls(ToQt(problems_->Element(problem.element).Name()));
}

}  // namespace plexel

#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "editor/problem_texts.h"
#include "project/problems.h"

namespace plexel {

/// The problems of the open project, which every change brings up to date; list, picture and inspector tell of these.
class LiveProblems {
 public:
  /// Looks all elements of a document through; null for none. It must outlive all use of its problems.
  void Show(const PanelDocument* document);
  /// Takes a change of the elements of these places.
  void Changed(std::span<const std::size_t> places);
  /// Takes the language and the settings in force.
  void Retranslate();

  /// Why problems are not known; empty when they are.
  const QString& Failure() const { return failure_; }
  int PlaceCount() const { return problems_ ? static_cast<int>(problems_->ElementCount()) : 0; }
  ProblemCounts Counts() const;
  ProblemCounts CountsOf(int place) const;
  /// The graver level of those of a place.
  std::optional<ProblemLevel> LevelOf(int place) const;
  std::vector<Problem> Of(int place) const;
  /// What would happen on the machine; plain text.
  QString TextOf(const Problem& problem) const;
  /// The same with control characters as they are.
  std::string PlainText(const Problem& problem) const;
  /// The same with level and layers ahead, for where no columns tell them.
  QString WholeText(const Problem& problem) const;
  QString ElementOf(const Problem& problem) const;

  /// All problems are other ones.
  std::function<void()> onReset;
  /// Those of some places may be other ones; the places ascend.
  std::function<void(std::span<const std::size_t> places)> onChanged;

 private:
  void Forget(const QString& failure);

  const PanelDocument* document_ = nullptr;
  std::unique_ptr<Problems> problems_;
  ProblemWords words_ = ProblemWordsInForce();
  QString failure_;
};

}  // namespace plexel

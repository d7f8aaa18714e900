#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "element/property_bag.h"
#include "project/document_panel.h"
#include "project/element_change.h"

namespace plexel {

/// What a step of a project's history did; programs say it in the user's language.
enum class StepKind {
  Configure,
  Properties,
  Paste,
  Swap,
  Clear,
  Notes,
  LedFunction,
  Import,
  Restore,
  Recover,
  TakeOver,
  UsePanel
};

/// The name of a step.
struct StepName {
  StepKind kind = StepKind::Configure;
  std::string element;    ///< the only element that it changed, else empty
  std::size_t count = 0;  ///< of elements that it changed
  bool operator==(const StepName&) const = default;
};

/// A stored value whose key no element knows.
struct ForeignValue {
  std::string key;
  BagValue value;
  /// Floats by their bits: what is no number equals itself.
  bool operator==(const ForeignValue& other) const;
};
/// Those of one element, in the order of the file.
using ForeignValues = std::vector<ForeignValue>;

/// One step: of each element that it changed the values that lead to its other side.
struct Step {
  /// The values of one element, by its place in the project.
  struct Part {
    std::size_t place{};
    ElementChange change;
    std::optional<ForeignValues> foreign = {};  ///< all of them, where they differ
  };
  StepName name;
  std::vector<Part> parts;                          ///< ascending by place
  std::shared_ptr<const DocumentPanel> panel = {};  ///< that of the other side, where it is another
  std::optional<bool> carriesPanel = {};            ///< of the other side, where the two differ in it
};

/// The steps of a project in the order in which they were made, those done before those that were taken back. Without
/// limit.
class History {
 public:
  bool CanUndo() const { return done_ > 0; }
  bool CanRedo() const { return done_ < steps_.size(); }
  /// The step that is taken back next, and the one that is done again next. Only when there is one.
  Step& ToUndo() { return steps_.at(done_ - 1); }
  Step& ToRedo() { return steps_.at(done_); }
  const Step& ToUndo() const { return steps_.at(done_ - 1); }
  const Step& ToRedo() const { return steps_.at(done_); }

  /// Appends a step that was done; those that were taken back are forgotten.
  void Add(Step step);
  void Undone() { --done_; }
  void Redone() { ++done_; }

 private:
  std::vector<Step> steps_;
  std::size_t done_ = 0;
};

}  // namespace plexel

#pragma once

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "project/problem.h"
#include "project/shared_values.h"

namespace plexel {

class PanelDocument;

/// The problems of the elements of a project, kept up to date change by change. The elements outlive it.
///
/// Problems come in the order of the elements, then of layers, then of rules; those about no layer come first. Of a
/// value that many elements share, an element is told together with the first MostPartners of them alone.
class Problems {
 public:
  static constexpr std::size_t MostPartners = 16;

  /// Checks elements in their order. Failures of the capability service pass to the caller.
  explicit Problems(std::vector<const ctlPlexelBaseElement*> elements);

  /// Those of a document, in the order of its places.
  explicit Problems(const PanelDocument& document);

  /// Takes a change of an element. Gives the elements whose problems were looked through again, in their order; none
  /// for an element that is not among them.
  std::vector<std::size_t> Recheck(const ctlPlexelBaseElement& changed);

  std::size_t ElementCount() const { return elements_.size(); }
  const ctlPlexelBaseElement& Element(std::size_t element) const { return *elements_.at(element); }
  /// The problems of one element.
  std::vector<Problem> Of(std::size_t element) const;
  /// All of them.
  std::vector<Problem> All() const;
  std::size_t Errors() const { return errors_; }
  std::size_t Warnings() const { return warnings_; }
  /// What would happen on the machine.
  std::string Text(const Problem& problem, const ProblemWords& words = EnglishProblemWords()) const;

 private:
  /// What is known of one element.
  struct Entry {
    std::vector<SharedValue> values;
    std::vector<Problem> own, shared;
  };
  void CheckOwn(std::size_t element);
  void CheckShared(std::size_t element);
  void Put(std::vector<Problem>& place, std::vector<Problem> problems);

  std::vector<const ctlPlexelBaseElement*> elements_;
  std::unordered_map<const ctlPlexelBaseElement*, std::size_t> places_;
  std::vector<Entry> entries_;
  SharedValues index_;
  std::size_t errors_ = 0, warnings_ = 0;
};

}  // namespace plexel

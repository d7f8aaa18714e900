#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
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
  /// The same of several elements, told by their numbers in the order of the elements.
  std::vector<std::size_t> Recheck(std::span<const std::size_t> changed);

  std::size_t ElementCount() const { return elements_.size(); }
  const ctlPlexelBaseElement& Element(std::size_t element) const { return *elements_.at(element); }
  /// The problems of one element.
  std::vector<Problem> Of(std::size_t element) const;
  /// All of them.
  std::vector<Problem> All() const;
  std::size_t Errors() const { return counts_.errors; }
  std::size_t Warnings() const { return counts_.warnings; }
  /// How many problems an element has.
  ProblemCounts CountsOf(std::size_t element) const;
  /// What would happen on the machine.
  std::string Text(const Problem& problem, const ProblemWords& words = EnglishProblemWords()) const;

 private:
  /// What is known of one element. Where many elements are alike, the problems that pairs of them have are many more
  /// than the elements: they are counted, and made when they are asked for.
  struct Entry {
    std::vector<SharedValue> values;
    std::vector<Problem> own;
    ProblemCounts ownCounts, sharedCounts;
  };
  void CheckOwn(std::size_t element);
  void CountShared(std::size_t element);
  std::vector<Problem> SharedOf(std::size_t element) const;
  /// Calls `visit(other, value)` for the elements ahead with which an element is told together, value by value.
  template <typename Visit>
  void ForEachPartner(std::size_t element, Visit&& visit) const;
  void Put(ProblemCounts& place, const ProblemCounts& counts);

  std::vector<const ctlPlexelBaseElement*> elements_;
  std::unordered_map<const ctlPlexelBaseElement*, std::size_t> places_;
  std::vector<Entry> entries_;
  SharedValues index_;
  ProblemCounts counts_;
  std::vector<std::uint64_t> pairs_;  ///< of the element that is being counted
};

}  // namespace plexel

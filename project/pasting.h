#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "project/definition.h"
#include "project/panel_document.h"

namespace plexel {

/// The text that stands for elements outside the program: a JSON document such as an export makes, with these elements
/// alone.
std::string CopiedText(const PanelDocument& document, std::span<const std::size_t> places);
/// The definitions in such a text, or in a whole exported project. FileError with the place for any other text.
std::vector<ElementRecord> DefinitionsIn(std::string_view text);

/// Definitions that are about to be given to elements: what will be lost of them can be asked before anything changes.
class Pasting {
 public:
  /// One definition goes to all elements, several go to as many elements in their order.
  static bool Fits(std::size_t definitions, std::size_t places) {
    return places > 0 && (definitions == 1 || definitions == places);
  }
  /// `Fits` holds for them. The document must outlive the pasting.
  Pasting(PanelDocument& document, std::vector<ElementRecord> definitions, std::span<const std::size_t> places,
          LayerSet layers = {});
  /// Two elements exchange what they are defined as.
  static Pasting Swap(PanelDocument& document, std::size_t first, std::size_t second);

  /// What an element cannot take, in the order of the elements.
  std::vector<Misfit> Misfits() const;
  /// LED functions that would stand on a layer of two elements.
  std::vector<Misfit> LedsTwice() const;
  /// Makes it one step.
  void Do(StepKind kind, bool withLeds = true);

 private:
  const ElementRecord& For(std::size_t index) const { return definitions_[definitions_.size() == 1 ? 0 : index]; }

  PanelDocument& document_;
  std::vector<ElementRecord> definitions_;
  std::vector<std::size_t> places_;
  LayerSet layers_;
};

}  // namespace plexel

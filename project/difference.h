#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "files/project_file.h"

namespace plexel {

/// What a difference is about: the panel in the head, the text of the panel that is carried (empty for none), a stored
/// property, a code buffer, or an element that the other project lacks.
enum class DifferenceKind { Panel, PanelText, Property, Codes, OnlyFirst, OnlySecond };

/// One thing in which two projects differ.
struct ProjectDifference {
  DifferenceKind kind{};
  std::string element;  ///< the place; empty for the head
  std::string name;     ///< the key of the property, or the field name of the code buffer
  /// The two values. Those of an element's own keys are of the property's type, as the element reads them: what is not
  /// stored has its default. A foreign key that one side does not store has no value there. Of a code buffer they are
  /// the bytes 0 to NextValue in hexadecimal.
  std::optional<BagValue> from, to;
  /// Of a code buffer, when bytes behind both NextValues differ: in hexadecimal what follows NextValue, up to the last
  /// byte that differs; else both are empty. Nobody sends these, but a project keeps them.
  std::string fromBehind, toBehind;
};

/// All differences: the head first, then the elements in the order of the first project, then those that only the
/// second has, in its order. Of an element its own keys come first in the order in which an element reads them, then
/// foreign keys as they stand, then the code buffers. The order of elements and of keys in a file is no difference, nor
/// is a value of another type that the element reads the same.
std::vector<ProjectDifference> DifferencesOf(const Project& first, const Project& second);

}  // namespace plexel

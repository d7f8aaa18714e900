#pragma once

#include <string>
#include <string_view>

#include "files/place_set.h"
#include "files/project_file.h"

namespace plexel {

/// Writes the text of a project element by element. Failure (Overflow) for a text that makes a line longer than
/// TextFile::LongestLine, Failure (Index) for a place that stands twice, an element too many or a buffer that does not
/// exist.
class ProjectWriter {
 public:
  /// `count` is the number of elements that will be added; `panelText` is the text of the panel file, empty for none.
  ProjectWriter(std::string_view panel, std::size_t count, std::string_view panelText = {},
                std::size_t limit = ProjectLimit);
  void Add(const ProjectElement& element);
  /// The text of one element, as it stands in a project.
  static std::string Section(const ProjectElement& element);
  /// The text ahead of the elements, and behind them.
  static std::string Head(std::string_view panel, std::size_t count, std::string_view panelText) {
    return ProjectWriter(panel, count, panelText).out_;
  }
  static constexpr std::string_view Tail = "\n[END]\n";
  /// The whole text. Failure (Index) when the elements added are not as many as were told, Failure (Overflow) for more
  /// bytes than the limit.
  std::string Finish();

 private:
  ProjectWriter() : left_(1), places_(1) {}
  void Append(std::string_view text) { out_ += text; }
  void EndLine();
  template <typename Number>
  void AppendNumber(Number number);
  template <typename Number>
  void AppendTyped(std::string_view type, Number number);
  void AppendEntry(const BagValue& value);
  void AppendValue(std::int16_t value);
  void AppendValue(std::int32_t value);
  void AppendValue(std::uint8_t value);
  void AppendValue(Boolean value);
  void AppendValue(double value);
  void AppendValue(const std::string& value);
  void AppendCodes(const udtTactisBaseElement_TACTIS_SCANCODE& codes);

  std::string out_;
  std::size_t lineStart_ = 0;
  std::size_t limit_ = ProjectLimit;
  std::size_t left_;  ///< elements still to be added
  PlaceSet places_;
};

}  // namespace plexel

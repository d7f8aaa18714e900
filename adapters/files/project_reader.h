#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "files/place_set.h"
#include "files/project_file.h"
#include "files/text_lines.h"

namespace plexel {

/// Reads a project element by element. Whatever is no whole and proper project is a FileError with its line.
class ProjectReader {
 public:
  /// Reads the header. The file must outlive the reader.
  explicit ProjectReader(const TextFile& file);

  const std::string& Panel() const { return panel_; }
  /// The text of the panel that the project carries; empty for none.
  const std::string& PanelText() const { return panelText_; }
  /// How many elements the header tells of.
  std::uint32_t Count() const { return *count_; }
  /// The next element; false behind the last one, when the end of the file has been found whole.
  bool Next(ProjectElement& element);

 private:
  [[noreturn]] void Refuse(const std::string& reason) const;
  [[noreturn]] void RefuseCount(std::string_view how) const;
  bool NextLine();
  /// Whether the line that was taken last begins a section.
  bool AtSection() const { return line_.front() == '['; }
  std::string_view SectionName() const;
  void SplitKey();
  std::string Decode(std::string_view bytes) const;
  void ReadHeader();
  /// Whether the format is one with a panel; refuses an unknown one.
  bool CarriesPanel() const;
  bool ReadPanelText(bool more);
  void TakeSection(bool more);
  void CheckEnd();
  void ReadValue(ProjectElement& element);
  template <typename Type>
  Type Number(std::string_view text) const;
  void Store(ProjectElement& element, BagValue&& value);
  std::string OtherKey() const;
  void StoreCodes(ProjectElement& element, std::string_view text);

  const TextFile& file_;
  LineWalk lines_;
  std::string_view line_, key_, value_;
  std::optional<std::uint32_t> count_;
  std::string panel_, panelText_;
  std::string place_;  ///< of the element whose section comes next
  PlaceSet places_;
  std::size_t given_ = 0;
  bool ended_ = false;
};

}  // namespace plexel

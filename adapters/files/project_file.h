#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "files/file_error.h"
#include "files/flat_bag.h"
#include "services/element_types.h"

namespace plexel {

class TextFile;

/// One code buffer of an element's record. The buffers are numbered press before release, layer by layer, from 0 to 7.
struct SavedCodes {
  /// The number of the buffer.
  std::int32_t buffer = 0;
  /// Its codes.
  udtTactisBaseElement_TACTIS_SCANCODE codes;
  bool operator==(const SavedCodes&) const = default;
};

/// What a project keeps of one element.
struct ProjectElement {
  std::string place;              ///< of the panel, unique in the project
  FlatBag bag;                    ///< as the element wrote it
  std::vector<SavedCodes> codes;  ///< of the buffers that are not in their initial state
  bool operator==(const ProjectElement&) const = default;
};

/// A project as its file keeps it.
struct Project {
  std::string panel;  ///< name of the panel
  /// The elements in the order of the file.
  std::vector<ProjectElement> elements;
  /// The text of the panel file, with which the project travels; UTF-8, lines ended by LF. Empty when it is not
  /// carried.
  std::string panelText = {};
  bool operator==(const Project&) const = default;
};

/// The buffers of a record that are not in the initial state of an element's buffers.
std::vector<SavedCodes> CodesOf(const udtTactisBaseElement_ScanCodeInfo& record);
/// Gives the eight buffers of a record the saved codes; those that are not saved get the initial state.
void PutCodes(const std::vector<SavedCodes>& codes, udtTactisBaseElement_ScanCodeInfo& record);

/// A project of a format that only later versions of the program know.
class NewerFormat : public FileError {
 public:
  /// `refusal` tells the place in the file.
  NewerFormat(const FileError& refusal, std::uint32_t format) : FileError(refusal), format_(format) {}

  /// The format of the file.
  std::uint32_t Format() const { return format_; }

 private:
  std::uint32_t format_;
};

/// The text of a project in Windows-1252, see docs/formats.md. Failure (Overflow) for a text that makes a line longer
/// than TextFile::LongestLine and for a text larger than ProjectLimit, Failure (Index) for a place that stands twice or
/// a buffer that does not exist.
std::string FormatProject(const Project& project);
/// Reads it back. FileError with the line for anything that is no whole and proper project, NewerFormat for one that
/// only later versions know.
Project ParseProject(const TextFile& file);

/// The text that WriteProject would write to a file; FileError with its name for a project that cannot be written.
std::string ProjectFileText(const std::filesystem::path& file, const Project& project);

/// Reads and writes a project file; FileError when that fails, and then nothing has changed. A FileWarning tells of a
/// file that was written.
Project ReadProject(const std::filesystem::path& file);
void WriteProject(const std::filesystem::path& file, const Project& project);

/// A larger project is neither read nor written.
inline constexpr std::size_t ProjectLimit = std::size_t{512} << 20U;

}  // namespace plexel

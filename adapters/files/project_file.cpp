#include "files/project_file.h"

#include "files/project_reader.h"
#include "files/project_writer.h"
#include "files/system_files.h"
#include "files/text_lines.h"
#include "platform/failure.h"

namespace plexel {

namespace {

constexpr std::int32_t BufferCount = 2 * LayerCount;

const udtTactisBaseElement_TACTIS_SCANCODE& BufferOf(const udtTactisBaseElement_ScanCodeInfo& record,
                                                     std::int32_t number) {
  const std::int32_t layer = number / 2 + 1;
  return number % 2 == 0 ? *PressBuffer(record, layer) : *ReleaseBuffer(record, layer);
}

udtTactisBaseElement_TACTIS_SCANCODE& BufferOf(udtTactisBaseElement_ScanCodeInfo& record, std::int32_t number) {
  const std::int32_t layer = number / 2 + 1;
  return number % 2 == 0 ? *PressBuffer(record, layer) : *ReleaseBuffer(record, layer);
}

constexpr udtTactisBaseElement_TACTIS_SCANCODE initialCodes = InitialCodes();

}  // namespace

std::vector<SavedCodes> CodesOf(const udtTactisBaseElement_ScanCodeInfo& record) {
  std::vector<SavedCodes> codes;
  for (std::int32_t number = 0; number < BufferCount; ++number) {
    const udtTactisBaseElement_TACTIS_SCANCODE& buffer = BufferOf(record, number);
    if (buffer != initialCodes) codes.push_back({number, buffer});
  }
  return codes;
}

void PutCodes(const std::vector<SavedCodes>& codes, udtTactisBaseElement_ScanCodeInfo& record) {
  for (std::int32_t number = 0; number < BufferCount; ++number) BufferOf(record, number) = initialCodes;
  for (const SavedCodes& saved : codes) {
    if (saved.buffer >= 0 && saved.buffer < BufferCount) BufferOf(record, saved.buffer) = saved.codes;
  }
}

std::string FormatProject(const Project& project) {
  ProjectWriter writer(project.panel, project.elements.size(), project.panelText);
  for (const ProjectElement& element : project.elements) writer.Add(element);
  return writer.Finish();
}

Project ParseProject(const TextFile& file) {
  ProjectReader reader(file);
  Project project;
  project.panel = reader.Panel();
  project.panelText = reader.PanelText();
  for (ProjectElement element; reader.Next(element);) project.elements.push_back(std::move(element));
  return project;
}

Project ReadProject(const std::filesystem::path& file) { return ParseProject(TextFile(file, ProjectLimit)); }

std::string ProjectFileText(const std::filesystem::path& file, const Project& project) {
  try {
    return FormatProject(project);
  } catch (const Failure& failure) {
    throw FileError(file, std::string("cannot be written: ") + failure.what());
  }
}

void WriteProject(const std::filesystem::path& file, const Project& project) {
  WriteWholeFile(file, ProjectFileText(file, project));
}

}  // namespace plexel

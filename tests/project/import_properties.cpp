#include "import_properties.h"

#include <optional>
#include <stdexcept>
#include <string>

#include "files/file_error.h"
#include "files/text_lines.h"
#include "forms/characters.h"
#include "project/difference.h"
#include "project/project_export.h"
#include "project/project_import.h"

namespace plexel {

namespace {

void Require(bool holds, const char* property) {
  if (!holds) throw std::logic_error(property);
}

std::optional<Project> Import(std::string_view content) {
  try {
    return ImportProject("document", content);
  } catch (const FileError& error) {
    Require(!error.Reason().empty(), "an error has a reason");
    Require(characters::IsWellFormed(error.Reason()), "a reason is UTF-8");
    return std::nullopt;
  }
}

}  // namespace

void CheckImport(std::string_view content) {
  const std::optional<Project> project = Import(content);
  if (!project) return;
  const std::string document = ExportProject(*project);
  const std::optional<Project> again = Import(document);
  Require(again.has_value(), "a document that was written is read");
  Require(DifferencesOf(*project, *again).empty(), "a project comes back from its document");
  Require(ExportProject(*again) == document, "a document comes back byte for byte");
  const std::string text = FormatProject(*project);
  const Project fromFile = ParseProject(TextFile("project", text));
  Require(ExportProject(fromFile) == document, "a project file holds what a document holds");
}

}  // namespace plexel

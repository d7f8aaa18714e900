#pragma once

#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "project/panel_document.h"

namespace plexel {

/// The projects that a script has opened. The one that was opened last is the one to save.
class OpenProjects {
 public:
  using Element = std::shared_ptr<ctlPlexelBaseElement>;

  /// Reads a project and its panel, and makes nothing yet; FileError when one of them cannot be read.
  struct Source {
    std::filesystem::path file;
    Project project;
    std::vector<std::string> places;  ///< of all elements that the panel has
  };
  static Source Read(const std::filesystem::path& file, const std::filesystem::path& panelDirectory);

  /// Makes the elements, named by their places, as they were stored; those that the project lacks are new. FileError
  /// for places that the panel lacks.
  const PanelDocument& Open(const Source& source, const PanelDocument::Site& site);

  /// The project to save, null before the first one.
  const PanelDocument* Latest() const { return opened_.empty() ? nullptr : opened_.back().document.get(); }
  /// Writes the project to save, into the file that it was read from when none is named, as TellReplacing
  /// does; FileError when that fails. There must be one.
  void Save(const std::string& file, std::ostream& errors) const;

 private:
  struct Opened {
    std::filesystem::path file;
    std::unique_ptr<PanelDocument> document;
  };
  std::vector<Opened> opened_;
};

}  // namespace plexel

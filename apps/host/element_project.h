#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "files/panel_file.h"
#include "files/project_file.h"
#include "host/placed_control.h"

namespace plexel::host {

/// A project whose elements are controls, one on every place of its panel.
class ElementProject {
 public:
  struct Place {
    const PanelPart* part = nullptr;
    std::unique_ptr<PlacedControl> control;
    /// Values that other programs have put into the file. They are saved as they came.
    std::vector<std::pair<std::string, BagValue>> foreign = {};
  };

  /// An empty project on a panel. FileError when the panel cannot be read, ComError when a control fails.
  static std::unique_ptr<ElementProject> New(const std::string& panel, const std::filesystem::path& panelDirectory,
                                             Container& container);
  /// The project of a file: its elements in their order, then those that only the panel has. FileError when it or its
  /// panel cannot be read, and for places that the panel lacks.
  static std::unique_ptr<ElementProject> Open(const std::filesystem::path& file,
                                              const std::filesystem::path& panelDirectory, Container& container);

  /// What Save writes: the elements at rest, whichever has the keys.
  Project Content() const;
  /// Writes the file and takes it as its own; FileError when that fails.
  void Save(const std::filesystem::path& file);
  /// Empty for a project that was never saved.
  const std::filesystem::path& File() const { return file_; }
  /// Whether the panel is saved along, so that the project opens where the panel is not installed.
  void CarriesPanel(bool carries) { carriesPanel_ = carries; }

  const Panel& ThePanel() const { return panel_; }
  const std::vector<Place>& Places() const { return places_; }
  /// The control of a place; null for a place that is not on the panel.
  PlacedControl* Find(const std::string& name) const;
  /// Stored values that controls could not read, as ELEMENT: KEY. From there on they have those of new ones, which
  /// saving writes.
  const std::vector<std::string>& Unread() const { return unread_; }

  /// Brings all elements into line with the user's settings.
  void Refresh();
  /// Sizes all elements for a factor of the screen, 1.0 at 96 pixels an inch.
  void Scale(double factor);
  /// Whether a control shows the LED function in the layer.
  bool LedIsDefined(LONG type, LONG layer) const;

 private:
  ElementProject(std::string name, std::string text, const std::filesystem::path& origin)
      : panelName_(std::move(name)), panelText_(std::move(text)), panel_(ParsePanel(origin, panelText_)) {}
  void AddNew(const PanelPart& part, Container& container);
  void AddSaved(const PanelPart& part, const ProjectElement& saved, Container& container);

  std::string panelName_, panelText_;
  bool carriesPanel_ = false;
  const Panel panel_;
  std::vector<Place> places_;
  std::vector<std::string> unread_;
  std::filesystem::path file_;
};

}  // namespace plexel::host

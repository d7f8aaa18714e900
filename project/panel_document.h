#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "component/component.h"
#include "files/panel_file.h"
#include "files/project_file.h"

namespace plexel {

/// A display unit with one element on every place of its panel.
class PanelDocument {
 public:
  /// What elements need of their surroundings.
  struct Site {
    Component& component;
    ElementHost& host;
    std::shared_ptr<HostObject> window;
    std::filesystem::path panelDirectory;
  };
  struct Place {
    const PanelPart* part;
    std::shared_ptr<ctlPlexelBaseElement> element;
  };

  /// An empty project on a panel. FileError when the panel cannot be read.
  static std::unique_ptr<PanelDocument> New(const std::string& panelName, const Site& site);
  /// The project of a file. FileError when it or its panel cannot be read, and for places that the panel lacks.
  static std::unique_ptr<PanelDocument> Open(const std::filesystem::path& file, const Site& site);
  ~PanelDocument();
  PanelDocument(const PanelDocument&) = delete;
  PanelDocument& operator=(const PanelDocument&) = delete;

  /// Writes the project and takes the file as its own; FileError when that fails. The file holds the elements at rest,
  /// whatever is selected and however far it is zoomed; what the screen shows stays.
  void Save(const std::filesystem::path& file);

  const Panel& ThePanel() const { return panel_; }
  const std::vector<Place>& Places() const { return places_; }
  /// The place of an element, -1 for an element that is not on the panel.
  int PlaceOf(const ctlPlexelBaseElement& element) const;
  /// Empty for a project that was never saved.
  const std::filesystem::path& File() const { return file_; }

  bool Modified() const { return modified_; }
  void Modified(bool value) { modified_ = value; }

  /// Percent; the same for all elements.
  int Zoom() const { return zoom_; }
  void Zoom(int percent);
  static constexpr int SmallestZoom = 25, LargestZoom = 400, NormalZoom = 100;

  /// Brings all elements into line with the user's settings.
  void Refresh();
  /// Whether any element shows the LED function in the layer.
  bool LedIsDefined(std::int32_t type, std::int32_t layer) const;

 private:
  PanelDocument(std::string panelName, Panel panel) : panelName_(std::move(panelName)), panel_(std::move(panel)) {}
  void AddNew(const PanelPart& part, const Site& site);
  void AddSaved(const PanelPart& part, const ProjectElement& saved, const Site& site);
  /// What a saved element does not bring along.
  void SetWhatIsNotSaved(ctlPlexelBaseElement& element, const PanelPart& part, const Site& site);

  std::string panelName_;
  const Panel panel_;
  std::vector<Place> places_;
  std::filesystem::path file_;
  bool modified_ = false;
  int zoom_ = NormalZoom;
};

}  // namespace plexel

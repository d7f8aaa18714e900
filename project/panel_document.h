#pragma once

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "component/component.h"
#include "files/panel_file.h"
#include "files/project_file.h"
#include "project/document_panel.h"
#include "project/history.h"
#include "project/panel_difference.h"

namespace plexel {

/// A display unit with one element on every place of its panel, and what was done to it.
///
/// Whatever changes what the project keeps goes through Change, and is a step that can be taken back.
class PanelDocument {
 public:
  /// What elements need of their surroundings.
  struct Site {
    Component& component;
    ElementHost& host;
    std::shared_ptr<HostObject> window;
    std::filesystem::path panelDirectory;
    bool keepsSettings = false;  ///< elements that were saved keep the settings of the user that they were saved with
  };
  struct Place {
    const PanelPart* part;
    std::shared_ptr<ctlPlexelBaseElement> element;
  };

  /// An empty project on a panel. FileError when the panel cannot be read.
  static std::unique_ptr<PanelDocument> New(const std::string& panelName, const Site& site);
  /// The project of a file. FileError when it or its panel cannot be read, and for places that the panel lacks.
  static std::unique_ptr<PanelDocument> Open(const std::filesystem::path& file, const Site& site);
  /// A project that stands in memory, without a file; `origin` is named in a FileError. The elements come in the order
  /// of the project, then those that only the panel has.
  static std::unique_ptr<PanelDocument> Of(const Project& project, const std::filesystem::path& origin,
                                           const Site& site);
  ~PanelDocument();
  PanelDocument(const PanelDocument&) = delete;
  PanelDocument& operator=(const PanelDocument&) = delete;

  /// Writes the project and takes the file as its own; FileError when that fails, and a FileWarning, when all is done,
  /// where it is to be told of. The file holds the elements at rest,
  /// whatever is selected and however far it is zoomed; what the screen shows stays.
  void Save(const std::filesystem::path& file);
  /// What Save writes.
  Project Content() const;
  /// What Save writes of one element.
  ProjectElement ElementContent(std::size_t place) const;
  const std::string& PanelName() const { return panelName_; }
  /// Whether the project takes its panel along, so that it opens where the panel is not installed.
  bool CarriesPanel() const { return carriesPanel_; }
  void CarriesPanel(bool value) { carriesPanel_ = value; }
  /// The text of the panel that is taken along; empty for none.
  std::string CarriedPanel() const { return carriesPanel_ ? panel_->text : std::string(); }
  /// What the panel and the installed one of its name differ in; nothing when none of the name is installed. FileError
  /// when the installed one cannot be read.
  std::vector<PanelDifference> InstalledPanelDiffers(const std::filesystem::path& panelDirectory) const;

  /// Another object behind a step that has changed it.
  const Panel& ThePanel() const { return panel_->panel; }
  const std::vector<Place>& Places() const { return places_; }
  /// The place of an element, -1 for an element that is not on the panel.
  int PlaceOf(const ctlPlexelBaseElement& element) const;
  /// Empty for a project that was never saved.
  const std::filesystem::path& File() const { return file_; }

  /// Whether the project holds anything else than its file, or than the empty project that it began as.
  bool Modified() const {
    return fileIsOther_ || !unsaved_.empty() || foreign_ != fileForeign_ || panel_->text != filePanel_->text ||
           carriesPanel_ != fileCarriesPanel_;
  }

  /// A file with what a document read from it or wrote into it last.
  struct KnownFile {
    std::filesystem::path file;
    std::size_t hash{};  ///< of the content
    bool operator==(const KnownFile&) const = default;
  };
  KnownFile Known() const { return {file_, hash_}; }
  /// What a file is compared with that.
  enum class OnDisk { Same, Other, Gone, Unreadable };
  struct FileState {
    OnDisk now = OnDisk::Same;
    std::string reason = {};  ///< why it is unreadable
    bool operator==(const FileState&) const = default;
  };
  /// Reads the file and compares it; on any thread, since no document takes part.
  static FileState Compare(const KnownFile& known);
  /// The file of this document now. Only for a document with a file.
  FileState FileNow() const { return Compare(Known()); }
  /// Whether another project is for the panel of this name, and has the same elements.
  bool HasElementsOf(const PanelDocument& other) const;
  /// Takes over all values of a project on the same panel, and its description of the panel when it carries one, as one
  /// step; FileError for another panel, or for one of the same name with other elements.
  void Become(StepKind kind, const PanelDocument& other);
  /// Takes a project that was just read from a file as what that file holds; the values here stay. FileError for
  /// another panel.
  void FileHolds(const PanelDocument& other);
  /// The file is gone, or holds something else, which is known from now on: the project counts as modified until it is
  /// saved.
  void FileIsLost(const std::filesystem::path& file);

  /// Runs what may change the elements of some places, and keeps what it has changed as one step; no step when nothing
  /// has changed. An exception goes on behind the step.
  void Change(StepKind kind, std::span<const std::size_t> places, const std::function<void()>& act);
  const History& Steps() const { return history_; }
  /// Takes the last step back, or does it again; nothing happens when there is none, and inside Change.
  void Undo();
  void Redo();
  /// Calls a listener with the places that a step has changed, or that were changed back, behind each of them. It must
  /// outlive the document.
  void Listen(std::function<void(std::span<const std::size_t> places)> listener);

  /// Stored values that elements could not read, as ELEMENT: KEY. An element stops reading at the first of its own:
  /// from there on it has the values of a new one, and saving writes these.
  const std::vector<std::string>& Unread() const { return unread_; }

  /// Percent; the same for all elements. An element follows when it is looked at with SurfaceAt: of a large panel few
  /// are in sight at once.
  int Zoom() const { return zoom_; }
  void Zoom(int percent) { zoom_ = std::clamp(percent, SmallestZoom, LargestZoom); }
  /// What the element of a place shows at the present zoom.
  const Surface& SurfaceAt(std::size_t place) const;
  static constexpr int SmallestZoom = 25, LargestZoom = 400, NormalZoom = 100;

  /// Brings all elements into line with the user's settings.
  void Refresh();
  /// Whether any element shows the LED function in the layer.
  bool LedIsDefined(std::int32_t type, std::int32_t layer) const;

 private:
  /// Values that other programs have put into a file, by place; elements without any have no entry. They are saved as
  /// they came.
  using Foreign = std::map<std::size_t, ForeignValues>;

  /// The panel is read from its text.
  PanelDocument(std::string panelName, const std::string& panelText, const std::filesystem::path& origin)
      : panelName_(std::move(panelName)),
        panel_(std::make_shared<const DocumentPanel>(DocumentPanel{panelText, ParsePanel(origin, panelText)})),
        filePanel_(panel_) {}
  /// Makes a document of elements as `next` gives them, null behind the last one.
  static std::unique_ptr<PanelDocument> Of(const std::string& panelName, const std::string& panelText,
                                           const std::function<const ProjectElement*()>& next,
                                           const std::filesystem::path& origin, const Site& site);
  void AddNew(const PanelPart& part, const Site& site);
  void AddSaved(const PanelPart& part, const ProjectElement& saved, const Site& site);
  /// What a saved element does not bring along.
  void SetWhatIsNotSaved(ctlPlexelBaseElement& element, const PanelPart& part, const Site& site);
  /// Of that, what the panel tells.
  void Describe(ctlPlexelBaseElement& element, const PanelPart& part);
  /// Puts a panel with the same elements in the place of the present one.
  void UsePanel(std::shared_ptr<const DocumentPanel> panel);
  void RequireSamePanel(const PanelDocument& other) const;
  /// The foreign values of another project on the same panel, by the places of this one.
  Foreign ForeignOf(const PanelDocument& other) const;
  /// Calls `visit(place, change, element)` for each element that differs from the one of the same name: the change
  /// leads to the other's values.
  template <typename Visit>
  void ForEachPair(const PanelDocument& other, Visit&& visit);
  /// Carries a step out; its parts lead back then.
  void Exchange(Step& step);
  /// Behind a change of elements: keeps account of what the file does not hold, and tells the listeners.
  void Account(const Step& step);

  std::string panelName_;
  bool carriesPanel_ = false, fileCarriesPanel_ = false;
  std::shared_ptr<const DocumentPanel> panel_, filePanel_;  ///< of the project, and of its file
  std::vector<Place> places_;
  Foreign foreign_, fileForeign_;  ///< of the project, and of its file
  std::vector<std::string> unread_;
  std::filesystem::path file_;
  std::size_t hash_ = 0;      ///< of the file's content as it was read or written last
  bool fileIsOther_ = false;  ///< the file does not hold what `unsaved_` starts from
  History history_;
  std::map<std::size_t, ElementChange> unsaved_;  ///< of elements that differ from the file: what the file holds
  std::vector<std::function<void(std::span<const std::size_t>)>> listeners_;
  int changing_ = 0;
  int zoom_ = NormalZoom;
};

}  // namespace plexel

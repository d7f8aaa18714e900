#pragma once

#include <istream>
#include <memory>
#include <string>

#include "component/component.h"
#include "element/element_host.h"
#include "files/file_surroundings.h"
#include "headless/headless_platform.h"
#include "headless/host_window.h"
#include "project/panel_document.h"

namespace plexel {

/// All that projects need to be open without a window: a platform in memory, the program's data, and the settings of a
/// user who has changed none. One at a time; it outlives its projects.
class ProjectBench {
 public:
  /// FileError when the data of the program cannot be read.
  ProjectBench();

  /// Chooses the language of what is told of projects; English unless told. FileError when it cannot be read.
  void Speak(const std::string& language) { surroundings_.ChooseLanguage(language); }

  /// Opens a project; "-" is the one on `standardInput`. FileError when it cannot be read.
  std::unique_ptr<PanelDocument> Open(const std::string& file, std::istream& standardInput);
  /// What elements are made with.
  PanelDocument::Site Site();

 private:
  /// The container of elements whose dialogs nobody opens.
  class Host : public ElementHost {
   public:
    Boolean CheckIfLedIsAlreadyDefined(std::int32_t&, std::int32_t&) override { return False; }
  };

  HeadlessPlatform platform_;
  FileSurroundings surroundings_;
  Component component_{platform_, surroundings_};
  Host host_;
  std::shared_ptr<HostForm> window_ = std::make_shared<HostForm>();
};

}  // namespace plexel

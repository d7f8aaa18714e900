#include "activex/control_surroundings.h"

#include "files/data_directory.h"
#include "platform/failure.h"

namespace plexel::activex {

FileSurroundings& ControlSurroundings::Files() {
  if (!files_ && !problem_) {
    try {
      files_ = std::make_unique<FileSurroundings>(DataDirectory(), ConfigurationDirectory());
    } catch (const FileError& error) {
      problem_ = error.what();
    }
  }
  if (!files_) throw Failure(FailureKind::Platform, *problem_);
  return *files_;
}

LanguageService& ControlSurroundings::Language() {
  if (innermost != nullptr && innermost->services.language.host) return innermost->services.language;
  return Files().Language();
}

SettingsService& ControlSurroundings::Settings() {
  if (innermost != nullptr && innermost->services.settings.host) return innermost->services.settings;
  return Files().Settings();
}

CapabilityService& ControlSurroundings::Capabilities() {
  if (innermost != nullptr && innermost->services.capabilities.host) return innermost->services.capabilities;
  return Files().Capabilities();
}

ParameterFileReader& ControlSurroundings::ParameterFiles() { return Files().ParameterFiles(); }

}  // namespace plexel::activex

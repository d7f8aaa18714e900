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
  if (host_ != nullptr && host_->language.host) return host_->language;
  return Files().Language();
}

SettingsService& ControlSurroundings::Settings() {
  if (host_ != nullptr && host_->settings.host) return host_->settings;
  return Files().Settings();
}

CapabilityService& ControlSurroundings::Capabilities() {
  if (host_ != nullptr && host_->capabilities.host) return host_->capabilities;
  return Files().Capabilities();
}

ParameterFileReader& ControlSurroundings::ParameterFiles() { return Files().ParameterFiles(); }

}  // namespace plexel::activex

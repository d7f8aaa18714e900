#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "files/file_capabilities.h"
#include "files/file_error.h"
#include "files/file_language.h"
#include "files/file_registry.h"
#include "files/file_settings.h"
#include "files/parameter_file.h"
#include "services/surroundings.h"

namespace plexel {

/// A host's services, all kept in files.
class FileSurroundings : public Surroundings {
 public:
  /// `data` is the directory of the program's data, `configuration` that of the user's own files. FileError when the
  /// capability tables are damaged, or no text of the chosen language nor of English can be read. Faults of the user's
  /// own files are told by the settings and the registry.
  FileSurroundings(const std::filesystem::path& data, const std::filesystem::path& configuration);

  FileLanguage& Language() override { return language_; }
  FileSettings& Settings() override { return settings_; }
  FileCapabilities& Capabilities() override { return capabilities_; }
  FileParameterReader& ParameterFiles() override { return parameterFiles_; }
  /// The registry, for the platform.
  FileRegistry& UserRegistry() { return registry_; }
  /// Why the language that the settings name was not to be had at the start and English stands in for it.
  const std::optional<FileError>& LanguageProblem() const { return languageProblem_; }

  /// The directory of the user's own files. It need not exist.
  const std::filesystem::path& Configuration() const { return configuration_; }

  /// Changes the language of texts and settings. FileError when it cannot be read; the old one then stays.
  void ChooseLanguage(const std::string& name);

 private:
  std::filesystem::path configuration_;
  FileRegistry registry_;
  FileSettings settings_;
  FileLanguage language_;
  FileCapabilities capabilities_;
  FileParameterReader parameterFiles_;
  std::optional<FileError> languageProblem_;
};

}  // namespace plexel

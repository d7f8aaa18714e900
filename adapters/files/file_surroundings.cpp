#include "files/file_surroundings.h"

#include "services/shared_services.h"

namespace plexel {

namespace {
constexpr const char* FallbackLanguage = "English";
}  // namespace

FileSurroundings::FileSurroundings(const std::filesystem::path& data, const std::filesystem::path& configuration)
    : configuration_(configuration),
      registry_(configuration / "registry.ini", std::string(PositionKey)),
      settings_(configuration / "settings.ini", data, registry_),
      language_(data / "languages"),
      capabilities_(data / "capabilities") {
  try {
    language_.Choose(settings_.Language());
  } catch (const FileError& error) {
    if (settings_.Language() == FallbackLanguage) throw;
    languageProblem_ = error;
    ChooseLanguage(FallbackLanguage);
  }
}

void FileSurroundings::ChooseLanguage(const std::string& name) {
  language_.Choose(name);
  settings_.Language(name);
}

}  // namespace plexel

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "files/language_file.h"
#include "services/surroundings.h"

namespace plexel {

/// The texts of one language at a time, from the files "NAME.lang" of a directory.
class FileLanguage : public LanguageService {
 public:
  /// The language files of a directory; none is chosen.
  explicit FileLanguage(std::filesystem::path directory) : directory_(std::move(directory)) {}

  /// Empty for a number without a text, and as long as no language has been chosen.
  void GetText(std::int32_t number, std::string& text) override;

  /// Chooses a language from now on. FileError when its file cannot be read or is damaged; the language chosen before
  /// then stays.
  void Choose(const std::string& name);
  /// The name of the language, empty before the first.
  const std::string& Chosen() const { return chosen_; }
  /// The languages that the directory holds, sorted.
  std::vector<std::string> Available() const;

 private:
  std::filesystem::path directory_;
  std::string chosen_;
  LanguageTexts texts_;
};

}  // namespace plexel

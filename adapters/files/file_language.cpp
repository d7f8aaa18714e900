#include "files/file_language.h"

#include <algorithm>
#include <system_error>

namespace plexel {

void FileLanguage::GetText(std::int32_t number, std::string& text) {
  const auto found = texts_.find(number);
  text = found == texts_.end() ? std::string() : found->second;
}

void FileLanguage::Choose(const std::string& name) {
  texts_ = ReadLanguageFile(directory_ / (name + ".lang"));
  chosen_ = name;
}

std::vector<std::string> FileLanguage::Available() const {
  std::vector<std::string> names;
  std::error_code error;
  std::filesystem::directory_iterator entries(directory_, error);
  for (; !error && entries != std::filesystem::directory_iterator(); entries.increment(error)) {
    if (entries->path().extension() == ".lang") names.push_back(entries->path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace plexel

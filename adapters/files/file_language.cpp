#include "files/file_language.h"

#include "files/file_lists.h"
#include "files/path_text.h"

namespace plexel {

void FileLanguage::GetText(std::int32_t number, std::string& text) {
  const auto found = texts_.find(number);
  text = found == texts_.end() ? std::string() : found->second;
}

void FileLanguage::Choose(const std::string& name) {
  texts_ = ReadLanguageFile(directory_ / PathOf(name + std::string(LanguageExtension)));
  chosen_ = name;
}

std::vector<std::string> FileLanguage::Available() const { return NamesOfFilesWith(LanguageExtension, directory_); }

}  // namespace plexel

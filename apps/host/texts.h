#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "services/surroundings.h"

namespace plexel::host {

/// The numbers of the host's own texts in the language files.
enum class Text : std::int32_t {
  MenuFile = 20100,
  Open = 20102,
  Save = 20103,
  SaveAs = 20104,
  Quit = 20105,
  MenuElement = 20110,
  Configure = 20111,
  Properties = 20112,
  MenuHelp = 20140,
  About = 20142,
  OpenTitle = 20202,
  SaveTitle = 20203,
  FileFilter = 20204,
  AskSave = 20205,
  OpenFailed = 20207,
  SaveFailed = 20208,
  SettingsFailed = 20209,
  Untitled = 20210,
  Failed = 20211,
  FilesDamaged = 20212,
  ValuesUnread = 20213,
  Events = 20400,
  MenuNew = 21300,
  MenuLanguage = 21301,
  AboutHost = 21302,
  NoControl = 21303,
};

/// The host's texts in the language that is chosen.
class Texts {
 public:
  explicit Texts(LanguageService& language) : language_(language) {}
  std::string Say(Text text) const;
  /// With a value in place of %1.
  std::string Say(Text text, std::string_view value) const;
  std::wstring SayWide(Text text) const;

 private:
  LanguageService& language_;
};

/// A list of kinds of files, "NAME (PATTERN);;NAME (PATTERN)", as the system's dialogs take it.
std::wstring FilterOf(const std::string& kinds);

}  // namespace plexel::host

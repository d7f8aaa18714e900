#pragma once

#include <functional>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace plexel {

/// How a word of the program is called.
struct FileCallForm {
  std::string_view help;                   ///< what "--help" tells; its first line is the usage
  std::size_t least = 0, most = 0;         ///< number of files
  std::vector<std::string_view> switches;  ///< options that stand alone
  std::vector<std::string_view> options;   ///< options with a value behind them
};

/// One call of a word, taken apart.
struct FileCall {
  std::vector<std::string> files;
  std::set<std::string, std::less<>> switches;
  std::map<std::string, std::string, std::less<>> options;
  bool Has(std::string_view name) const { return switches.contains(name); }
};

/// Takes a call apart and acts; gives the exit status. "--help" tells the word's help. A wrong call tells the usage,
/// and a FileError its text, both on standard error and with WrongCall. Behind "--" all words are files, and so is "-".
int RunFileCall(const FileCallForm& form, std::span<const std::string> arguments,
                const std::function<int(const FileCall& call)>& act);

}  // namespace plexel

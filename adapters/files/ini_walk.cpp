#include "files/ini_walk.h"

namespace plexel {

bool IniWalk::Next(IniLine& line) {
  std::string_view text;
  do {
    if (!lines_.Next(text)) return false;
    text = TrimBlanks(text);
  } while (text.empty() || text.front() == '#' || text.front() == ';');
  line.number = lines_.Number();
  line.section = text.front() == '[';
  if (line.section) {
    if (text.back() != ']') throw file_.Error(line.number, "a section must end in \"]\"");
    line.name = TrimBlanks(text.substr(1, text.size() - 2));
    line.value = {};
    return true;
  }
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos) {
    throw file_.Error(line.number, "\"" + Excerpt(text) + "\" is neither a section nor NAME=VALUE");
  }
  line.name = TrimBlanks(text.substr(0, equals));
  line.value = TrimBlanks(text.substr(equals + 1));
  return true;
}

}  // namespace plexel

#include "files/ini_walk.h"

#include "files/parameter_syntax.h"

namespace plexel {

bool IniWalk::Next(IniLine& line) {
  std::string_view text;
  ParameterLine read;
  do {
    if (!lines_.Next(text)) return false;
    read = ReadParameterLine(text);
  } while (read.kind == ParameterLineKind::Empty);
  line.number = lines_.Number();
  if (read.kind == ParameterLineKind::Other) {
    if (read.name.front() == '[') throw file_.Error(line.number, "a section must end in \"]\"");
    throw file_.Error(line.number, "\"" + Excerpt(read.name) + "\" is neither a section nor NAME=VALUE");
  }
  line.section = read.kind == ParameterLineKind::Section;
  line.name = read.name;
  line.value = read.value;
  return true;
}

}  // namespace plexel

#include "files/program_start.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>
#include <memory>

#include "files/path_text.h"

namespace plexel {

namespace {

struct LocalDeleter {
  void operator()(LPWSTR* words) const { LocalFree(words); }
};

}  // namespace

std::vector<std::string> StartProgram(int, char**) {
  for (std::FILE* const stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  int count = 0;
  const std::unique_ptr<LPWSTR, LocalDeleter> words(CommandLineToArgvW(GetCommandLineW(), &count));
  std::vector<std::string> arguments;
  for (int i = 1; words != nullptr && i < count; ++i) arguments.push_back(TextOf(words.get()[i]));
  return arguments;
}

}  // namespace plexel

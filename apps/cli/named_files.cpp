#include "cli/named_files.h"

#include <array>
#include <cstdio>

#include "files/file_error.h"
#include "files/system_files.h"
#include "files/text_lines.h"

namespace plexel {

namespace {

constexpr std::string_view Standard = "-";

std::string ReadStandardInput(std::size_t limit) {
  std::string content;
  std::array<char, std::size_t{64} << 10U> piece;
  while (const std::size_t count = std::fread(piece.data(), 1, piece.size(), stdin)) {
    content.append(piece.data(), count);
    if (content.size() > limit) {
      throw FileError(InputName("-"), 0, "cannot be read: it is larger than " + std::to_string(limit) + " bytes");
    }
  }
  if (std::ferror(stdin) != 0) throw FileError(InputName("-"), 0, "cannot be read");
  return content;
}

}  // namespace

std::filesystem::path InputName(const std::string& file) { return file == Standard ? "standard input" : file; }

std::string ReadInput(const std::string& file, std::size_t limit) {
  return file == Standard ? ReadStandardInput(limit) : ReadWholeFile(file, limit);
}

Project ReadInputProject(const std::string& file) {
  return ParseProject(TextFile(InputName(file), ReadInput(file, ProjectLimit)));
}

void WriteOutput(const std::string& file, std::string_view content) {
  if (file != Standard) {
    WriteWholeFile(file, content);
  } else if (std::fwrite(content.data(), 1, content.size(), stdout) != content.size() || std::fflush(stdout) != 0) {
    throw FileError("standard output", 0, "cannot be written");
  }
}

}  // namespace plexel

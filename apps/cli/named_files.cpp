#include "cli/named_files.h"

#include <array>

#include "files/file_error.h"
#include "files/path_text.h"
#include "files/replacing.h"
#include "files/system_files.h"
#include "files/text_lines.h"

namespace plexel {

namespace {

std::string ReadStream(std::istream& stream, std::size_t limit) {
  std::string content;
  std::array<char, std::size_t{64} << 10U> piece{};
  while (stream.read(piece.data(), piece.size()), stream.gcount() > 0) {
    content.append(piece.data(), static_cast<std::size_t>(stream.gcount()));
    if (content.size() > limit) {
      throw FileError(InputName("-"), "cannot be read: it is larger than " + std::to_string(limit) + " bytes");
    }
  }
  if (stream.bad()) throw FileError(InputName("-"), "cannot be read");
  return content;
}

}  // namespace

std::filesystem::path InputName(const std::string& file) {
  return file == StandardStream ? "standard input" : PathOf(file);
}

std::filesystem::path OutputName(const std::string& file) {
  return file == StandardStream ? "standard output" : PathOf(file);
}

std::string ReadInput(const std::string& file, std::size_t limit, std::istream& standardInput) {
  return file == StandardStream ? ReadStream(standardInput, limit) : ReadWholeFile(PathOf(file), limit);
}

Project ReadInputProject(const std::string& file, std::istream& standardInput) {
  return ParseProject(TextFile(InputName(file), ReadInput(file, ProjectLimit, standardInput)));
}

void WriteOutput(const std::string& file, std::string_view content, const Streams& streams) {
  if (file != StandardStream) {
    const std::filesystem::path path = PathOf(file);
    TellReplacing(path, [&] { WriteWholeFile(path, content); }, streams.errors);
  } else if (!streams.output.write(content.data(), static_cast<std::streamsize>(content.size())).flush()) {
    throw FileError(OutputName(file), "cannot be written");
  }
}

}  // namespace plexel

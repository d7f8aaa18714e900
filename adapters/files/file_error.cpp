#include "files/file_error.h"

#include "files/path_text.h"

namespace plexel {

namespace {

std::string Message(const std::filesystem::path& file, std::size_t line, const std::string& reason) {
  return TextOf(file) + (line == 0 ? "" : ":" + std::to_string(line)) + ": " + reason;
}

}  // namespace

FileError::FileError(const std::filesystem::path& file, std::size_t line, const std::string& reason)
    : std::runtime_error(Message(file, line, reason)), file_(file), line_(line), reason_(reason) {}

}  // namespace plexel

#pragma once

#include <cstddef>
#include <filesystem>
#include <istream>
#include <ostream>
#include <string>
#include <string_view>

#include "cli/streams.h"
#include "files/project_file.h"

namespace plexel {

/// Files as a call names them: "-" is standard input where a file is read, standard output where one is written.
inline constexpr std::string_view StandardStream = "-";

/// How a file that is read, or written, is called in messages.
std::filesystem::path InputName(const std::string& file);
std::filesystem::path OutputName(const std::string& file);
/// The whole content; FileError when it cannot be read or is larger than `limit` bytes.
std::string ReadInput(const std::string& file, std::size_t limit, std::istream& standardInput);
/// A project; FileError when it is none.
Project ReadInputProject(const std::string& file, std::istream& standardInput);

/// Replaces a file as a whole; FileError when that fails. What it loses by it is told before (TellReplacing).
void WriteOutput(const std::string& file, std::string_view content, const Streams& streams);

}  // namespace plexel

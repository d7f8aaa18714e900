#include "files/filling.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "files/beside.h"
#include "files/path_text.h"

namespace plexel {

namespace {

constexpr int NameAttempts = 100;

std::string ReasonOf(int error) { return std::generic_category().message(error); }

}  // namespace

int WriteAll(FilePort& port, int handle, std::size_t place, std::string_view bytes) {
  while (!bytes.empty()) {
    std::size_t written = 0;
    const int error = port.Write(handle, place, bytes, written);
    if (error != 0) return error;
    if (written == 0) return EIO;
    written = std::min(written, bytes.size());
    place += written;
    bytes.remove_prefix(written);
  }
  return 0;
}

int CreateBeside(FilePort& port, const std::filesystem::path& target, std::string_view ending,
                 std::filesystem::path& file, int& handle, FileTraits& lost) {
  int error = EEXIST;
  for (int number = 0; error == EEXIST && number < NameAttempts; ++number) {
    file = NameBeside(target, number, ending);
    lost.clear();
    error = port.Create(file, target, handle, lost);
  }
  return error;
}

std::string CannotBeWritten(int error) { return "cannot be written: " + ReasonOf(error); }

std::string MayNotOutlast(int error) { return "is written, but may not outlast a power cut: " + ReasonOf(error); }

std::string LeftOver(const std::filesystem::path& file, int error) {
  return error == 0 ? std::string() : " (" + TextOf(file) + " is left over: " + ReasonOf(error) + ')';
}

}  // namespace plexel

#include "files/byte_input.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace plexel {

ByteInput::ByteInput() : ByteInput(STDIN_FILENO) {}

ByteInput::ByteInput(const std::filesystem::path& file)
    : handle_(::open(file.c_str(), O_RDONLY | O_CLOEXEC)), own_(true) {
  if (handle_ < 0) throw std::system_error(errno, std::generic_category());
}

ByteInput::~ByteInput() {
  if (own_) ::close(static_cast<int>(handle_));
}

std::size_t ByteInput::Read(std::span<char> room) {
  ssize_t count = 0;
  do {
    count = ::read(static_cast<int>(handle_), room.data(), room.size());
  } while (count < 0 && errno == EINTR);
  if (count < 0) throw std::system_error(errno, std::generic_category());
  return static_cast<std::size_t>(count);
}

bool ByteInput::Ready(int milliseconds) const {
  pollfd waiting{static_cast<int>(handle_), POLLIN, 0};
  return ::poll(&waiting, 1, milliseconds) > 0;
}

}  // namespace plexel

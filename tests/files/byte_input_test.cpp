#include "files/byte_input.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <initializer_list>
#include <string>
#include <system_error>

#include "world/file_faults.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

/// The first bytes of a file, read while reading fails with these errors, one after the other.
std::string Read(std::initializer_list<int> errors) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("file", "content");
  const FileFaults faults(directory.Path(), "read", errors);
  ByteInput input(file);
  std::array<char, 100> room{};
  return {room.data(), input.Read(room)};
}

TEST(ByteInput, ReadingThatASignalInterruptsGoesOn) { EXPECT_EQ(Read({EINTR, EINTR}), "content"); }

TEST(ByteInput, ReadingThatFailsTellsTheReason) {
  try {
    Read({EIO});
    ADD_FAILURE() << "nothing is told";
  } catch (const std::system_error& error) {
    EXPECT_EQ(error.code(), std::errc::io_error);
  }
}

TEST(ByteInput, AtTheEndThereAreNoBytes) {
  const TemporaryDirectory directory;
  ByteInput input(directory.Put("file", ""));
  std::array<char, 1> room{};
  EXPECT_EQ(input.Read(room), 0U);
}

}  // namespace
}  // namespace plexel

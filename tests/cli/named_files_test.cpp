#include "cli/named_files.h"

#include <gtest/gtest.h>

#include <sstream>

#include "files/file_error.h"

namespace plexel {
namespace {

std::string FaultOf(std::istream& input, std::size_t limit) {
  try {
    ReadInput("-", limit, input);
  } catch (const FileError& error) {
    return error.what();
  }
  return "none";
}

TEST(NamedFiles, StandardInputIsReadUpToItsLimit) {
  const std::string content(100'000, 'x');
  std::istringstream input(content), same(content);
  EXPECT_EQ(ReadInput("-", content.size(), input), content);
  EXPECT_EQ(FaultOf(same, content.size() - 1), "standard input: cannot be read: it is larger than 99999 bytes");
}

TEST(NamedFiles, StandardInputThatBreaksOffIsAFailure) {
  /// Gives some bytes, then fails.
  class Broken : public std::streambuf {
    int_type underflow() override {
      if (given_) throw std::runtime_error("the line is broken");
      given_ = true;
      setg(bytes_, bytes_, bytes_ + sizeof bytes_);
      return traits_type::to_int_type(bytes_[0]);
    }
    char bytes_[3] = {'a', 'b', 'c'};
    bool given_ = false;
  };
  Broken bytes;
  std::istream input(&bytes);
  EXPECT_EQ(FaultOf(input, 100), "standard input: cannot be read");
}

TEST(NamedFiles, StandardStreamsHaveNamesInMessages) {
  EXPECT_EQ(InputName("-"), "standard input");
  EXPECT_EQ(OutputName("-"), "standard output");
  EXPECT_EQ(InputName("a"), "a");
  EXPECT_EQ(OutputName("a"), "a");
}

}  // namespace
}  // namespace plexel

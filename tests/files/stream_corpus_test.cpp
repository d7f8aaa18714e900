#include <gtest/gtest.h>

#include <vector>

#include "files/data_directory.h"
#include "files/element_stream.h"
#include "stream_properties.h"
#include "world/temporary_directory.h"
#include "world/world.h"

namespace plexel {
namespace {

std::vector<std::filesystem::path> Corpus() {
  std::vector<std::filesystem::path> files;
  for (const auto& entry :
       std::filesystem::directory_iterator(DataDirectory().parent_path() / "fuzz" / "corpus" / "stream")) {
    files.push_back(entry.path());
  }
  return files;
}

TEST(StreamCorpus, HoldsNoInputThatBreaksAProperty) {
  World world;
  EXPECT_FALSE(Corpus().empty());
  for (const auto& file : Corpus()) EXPECT_NO_THROW(CheckStream(world, Content(file))) << file;
}

TEST(StreamCorpus, HoldsNoInputWhoseHalvesBreakAProperty) {
  World world;
  for (const auto& file : Corpus()) {
    const std::string content = Content(file);
    EXPECT_NO_THROW(CheckStream(world, content.substr(0, content.size() / 2))) << file;
    EXPECT_NO_THROW(CheckStream(world, content.substr(content.size() / 2))) << file;
  }
}

TEST(StreamCorpus, HoldsStreamsThatAreRead) {
  std::size_t read = 0;
  for (const auto& file : Corpus()) {
    const std::string content = Content(file);
    const std::vector<std::uint8_t> bytes(content.begin(), content.end());
    if (BagOf(bytes) || BagOf(Sealed(bytes))) ++read;
  }
  EXPECT_GE(read, 4U);
}

}  // namespace
}  // namespace plexel

#include <gtest/gtest.h>

#include "files/data_directory.h"
#include "reader_properties.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

std::filesystem::path Corpus(std::string_view name) { return DataDirectory().parent_path() / "fuzz" / "corpus" / name; }

class ReaderCorpus : public testing::TestWithParam<ReaderCheck> {};

TEST_P(ReaderCorpus, HoldsNoInputThatBreaksAProperty) {
  const TemporaryDirectory directory;
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(Corpus(GetParam().name))) {
    EXPECT_NO_THROW(GetParam().check(directory.Path(), Content(entry.path()))) << entry.path();
    ++count;
  }
  EXPECT_GT(count, 0U);
}

TEST_P(ReaderCorpus, HoldsNoInputWhoseHalvesBreakAProperty) {
  const TemporaryDirectory directory;
  for (const auto& entry : std::filesystem::directory_iterator(Corpus(GetParam().name))) {
    const std::string content = Content(entry.path());
    EXPECT_NO_THROW(GetParam().check(directory.Path(), content.substr(0, content.size() / 2))) << entry.path();
    EXPECT_NO_THROW(GetParam().check(directory.Path(), content.substr(content.size() / 2))) << entry.path();
  }
}

INSTANTIATE_TEST_SUITE_P(Files, ReaderCorpus, testing::ValuesIn(ReaderChecks),
                         [](const auto& reader) { return std::string(reader.param.name); });

}  // namespace
}  // namespace plexel

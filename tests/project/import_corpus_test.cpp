#include <gtest/gtest.h>

#include "files/data_directory.h"
#include "import_properties.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

TEST(ImportCorpus, HoldsNoDocumentWhoseWholeOrHalvesBreakAProperty) {
  std::size_t count = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(DataDirectory().parent_path() / "fuzz" / "corpus" / "import")) {
    const std::string content = Content(entry.path());
    EXPECT_NO_THROW(CheckImport(content)) << entry.path();
    EXPECT_NO_THROW(CheckImport(content.substr(0, content.size() / 2))) << entry.path();
    EXPECT_NO_THROW(CheckImport(content.substr(content.size() / 2))) << entry.path();
    ++count;
  }
  EXPECT_GT(count, 0U);
}

}  // namespace
}  // namespace plexel

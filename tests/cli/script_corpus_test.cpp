#include <gtest/gtest.h>

#include <filesystem>

#include "files/data_directory.h"
#include "script_properties.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

TEST(ScriptCorpus, HoldsNoScriptWhoseWholeOrHalvesBreakAProperty) {
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(DataDirectory().parent_path() / "tests" / "scripts")) {
    if (entry.path().extension() != ".script") continue;
    const std::string content = Content(entry.path());
    EXPECT_NO_THROW(CheckScript(content)) << entry.path();
    EXPECT_NO_THROW(CheckScript(content.substr(0, content.size() / 2))) << entry.path();
    EXPECT_NO_THROW(CheckScript(content.substr(content.size() / 2))) << entry.path();
    ++count;
  }
  EXPECT_GT(count, 40U);
}

}  // namespace
}  // namespace plexel

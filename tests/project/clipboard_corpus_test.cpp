#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "clipboard_properties.h"
#include "files/data_directory.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

TEST(ClipboardCorpus, HoldsNoTextWhoseWholeOrHalvesBreakAProperty) {
  Clipboard clipboard;
  std::size_t count = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(DataDirectory().parent_path() / "fuzz" / "corpus" / "clipboard")) {
    const std::string content = Content(entry.path());
    EXPECT_NO_THROW(clipboard.Check(content)) << entry.path();
    EXPECT_NO_THROW(clipboard.Check(content.substr(0, content.size() / 2))) << entry.path();
    EXPECT_NO_THROW(clipboard.Check(content.substr(content.size() / 2))) << entry.path();
    ++count;
  }
  EXPECT_GT(count, 0U);
}

}  // namespace
}  // namespace plexel

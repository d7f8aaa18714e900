#include <gtest/gtest.h>

#include <filesystem>

#include "byte_choices.h"
#include "files/data_directory.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

TEST(DialogsCorpus, HoldsNoActsThatBreakAPromise) {
  std::size_t count = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(DataDirectory().parent_path() / "fuzz" / "corpus" / "dialogs")) {
    EXPECT_EQ(Walk(Content(entry.path())).broken, "") << entry.path();
    ++count;
  }
  EXPECT_GT(count, 0U);
}

}  // namespace
}  // namespace plexel

#include <gtest/gtest.h>

#include <cstdlib>

#include "element/ctlPlexelBaseElement.h"
#include "forms/form_directory.h"
#include "services/dialogs.h"
#include "win32/desk.h"
#include "win32/dialog_walk.h"
#include "win32/picture_file.h"
#include "win32/shown_form.h"

namespace plexel {

namespace {

/// Where pictures are written, from the environment; none without.
const char* PicturesFolder() { return std::getenv("PLEXEL_PICTURES"); }

class EveryDialog : public testing::TestWithParam<const char*> {};

}  // namespace

TEST_P(EveryDialog, ShowsWhatItsModelSays) {
  const std::string language = GetParam();
  Desk desk(language);
  int looked = 0;
  WalkDialogs(desk, [&](const std::string& name) {
    ++looked;
    for (const std::string& difference : DifferencesOf(desk.Top())) ADD_FAILURE() << name << ": " << difference;
    if (const char* const folder = PicturesFolder()) {
      const std::filesystem::path file = std::filesystem::path(folder) / (name + "-" + language.substr(0, 2) + ".png");
      UpdateWindow(desk.Top().Window());
      EXPECT_TRUE(WritePicture(desk.Top().Window(), file)) << file;
    }
  });
  EXPECT_TRUE(desk.Done());
  EXPECT_EQ(looked, 14);
  EXPECT_EQ(desk.failures, std::vector<std::string>());
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryDialog, testing::Values("English", "German"),
                         [](const auto& tested) { return std::string(tested.param); });

}  // namespace plexel

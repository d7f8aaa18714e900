#include <gtest/gtest.h>

#include <cstdlib>

#include "dialogs/dialog_visits.h"
#include "dialogs/told_form.h"
#include "win32/desk.h"
#include "win32/dialog_walk.h"
#include "win32/picture_file.h"
#include "win32/shown_form.h"

namespace plexel {

namespace {

/// Where pictures are written, from the environment; none without. Where the tellings lie that all renderers are held
/// against, from there too.
const char* PicturesFolder() { return std::getenv("PLEXEL_PICTURES"); }
const char* TellingsFolder() { return std::getenv("PLEXEL_TELLINGS"); }

class EveryDialog : public testing::TestWithParam<const char*> {};

}  // namespace

TEST_P(EveryDialog, ShowsWhatItsModelAndTheOtherRenderersSay) {
  const std::string language = GetParam();
  Desk desk(language);
  int looked = 0;
  dialogs::Tellings tellings;
  WalkDialogs(desk, [&](const std::string& name) {
    ++looked;
    dialogs::ToldForm told = ToldOfWindows(desk.Top());
    for (const std::string& difference : DifferencesOf(desk.Top())) ADD_FAILURE() << name << ": " << difference;
    if (const char* const folder = PicturesFolder()) {
      const std::filesystem::path file = std::filesystem::path(folder) / (name + "-" + language.substr(0, 2) + ".png");
      UpdateWindow(desk.Top().Window());
      EXPECT_TRUE(WritePicture(desk.Top().Window(), file)) << file;
    }
    if (name != "configuration-capture") told.tabOrder = FollowTab(desk.Top());
    tellings.Add(name, told);
  });
  EXPECT_TRUE(desk.Done());
  EXPECT_EQ(looked, dialogs::Looks);
  ASSERT_NE(TellingsFolder(), nullptr);
  const std::string kept = dialogs::Kept(TellingsFolder(), language);
  EXPECT_NE(kept, "");
  for (const std::string& difference : dialogs::Differences(tellings.Text(), kept)) ADD_FAILURE() << difference;
  EXPECT_EQ(desk.failures, std::vector<std::string>());
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryDialog, testing::Values("English", "German"),
                         [](const auto& tested) { return std::string(tested.param); });

}  // namespace plexel

#include "services/dialogs.h"

#include <gtest/gtest.h>

#include <set>
#include <type_traits>

#include "component/component.h"
#include "forms/form_directory.h"
#include "headless/headless_platform.h"
#include "headless/headless_surroundings.h"
#include "headless/recording_host.h"
#include "services/module_state.h"

namespace plexel {
namespace {

static_assert(!std::is_convertible_v<const char*, FormName> && !std::is_convertible_v<std::string, FormName> &&
                  !std::is_convertible_v<std::string_view, FormName>,
              "a text is no name of a form");

TEST(Dialogs, HaveNamesOfTheirOwn) {
  EXPECT_EQ(std::set<std::string_view>(dialogs::All.begin(), dialogs::All.end()).size(), dialogs::All.size());
}

TEST(Dialogs, AreAllInTheDirectoryUnderTheNamesThatTheyBear) {
  HeadlessPlatform platform;
  HeadlessSurroundings surroundings(platform);
  RecordingHost host(platform.faults);
  Component component(platform, surroundings);
  Module().ctlCurrentElement = component.Create("A", host);
  std::vector<std::string> shown;
  platform.Modal().onRun = [&shown](Form& form) {
    shown.push_back(form.Name());
    form.Unload();
  };
  for (const FormName name : dialogs::All) FormDirectory::Instance().ShowModal(name, nullptr);
  EXPECT_EQ(shown, std::vector<std::string>(dialogs::All.begin(), dialogs::All.end()));
}

}  // namespace
}  // namespace plexel

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "forms/form.h"
#include "headless/headless_user.h"
#include "platform/failure.h"
#include "world/world.h"

namespace plexel {
namespace {

/// Tells what has been done to it.
class UserForm : public Form {
 public:
  UserForm() : Form("frmUser") {
    KeyPreview(true);
    grid.Place(0, 0, 2000, 900);
    button.Place(0, 1000, 900, 300);
    choice.Place(0, 1400, 900, 300);
    choice.AddItem("one");
    choice.AddItem("two");
    text.Place(0, 1800, 900, 300);
    grid.OnDblClick = [this] { told.push_back("cell " + std::to_string(grid.Row()) + std::to_string(grid.Col())); };
    text.OnDblClick = [this] { told.push_back("text"); };
    button.OnClick = [this] { told.push_back("button"); };
    choice.OnClick = [this] { told.push_back(choice.Text()); };
  }
  void OnKeyDown(std::int16_t& keyCode, std::int16_t shift) override {
    told.push_back("down " + std::to_string(keyCode) + "/" + std::to_string(shift));
  }

  Grid grid{*this, "msgGrid", 3, 3, 1, 1};
  CommandButton button{*this, "cmdButton"};
  ComboBox choice{*this, "cboChoice"};
  TextBox text{*this, "txtText"};
  std::vector<std::string> told;
};

class User : public testing::Test, protected World {
 protected:
  template <typename Act>
  void Show(Act act) {
    platform.Modal().onRun = [&](Form& shown) {
      act(HeadlessUser(platform));
      shown.Unload();
    };
    form.ShowModal(nullptr);
  }
  static FailureKind KindOf(const std::function<void()>& act) {
    try {
      act();
    } catch (const Failure& failure) {
      return failure.Kind();
    }
    ADD_FAILURE() << "nothing failed";
    return {};
  }
  UserForm form;
};

TEST_F(User, ActsOnTheControlsOfTheOpenDialogByName) {
  Show([this](HeadlessUser user) {
    user.Click("cmdButton");
    user.Select("cboChoice", 1);
    user.DblClick("msgGrid", 2, 1);
    user.Click("msgGrid", 1, 2);
    EXPECT_EQ(form.grid.Row(), 1);
    EXPECT_EQ(form.grid.Col(), 2);
    user.DblClick("txtText");
  });
  EXPECT_EQ(form.told, (std::vector<std::string>{"button", "two", "cell 21", "text"}));
}

TEST_F(User, TypesWithAllKeyEvents) {
  Show([](HeadlessUser user) { user.Type("txtText", "ab"); });
  EXPECT_EQ(form.text.Text(), "ab");
  EXPECT_EQ(form.told.size(), 2U);
}

TEST_F(User, PressesKeysTogetherAndLetsGoOfThem) {
  Show([this](HeadlessUser user) {
    user.Press({{.virtualKey = key::Control, .scanCode = 0x1D}, {.virtualKey = 'A', .scanCode = 0x1E}});
    EXPECT_FALSE(platform.Keys().IsDown(key::Control));
    EXPECT_FALSE(platform.Keys().IsDown('A'));
  });
  EXPECT_EQ(form.told, (std::vector<std::string>{"down 17/2", "down 65/2"}));
}

TEST_F(User, AWrongNameIsAMistakeOfTheProgram) {
  Show([](HeadlessUser user) {
    EXPECT_THROW(user.Click("cmdNone"), std::logic_error);
    EXPECT_THROW(user.Click("cmdButton", 1, 1), std::logic_error);
    EXPECT_THROW(user.Type("msgGrid", "a"), std::logic_error);
  });
}

TEST_F(User, AWrongNameReachesWhoOpenedTheConfigurationDialog) {
  const auto element = component.Create("A", host);
  element->ElementType(Rect);
  platform.Modal().onRun = [this](Form&) { HeadlessUser(platform).Click("cmdNone"); };
  EXPECT_THROW(element->OpenConfigurationDialog(), std::logic_error);
  EXPECT_TRUE(platform.Modal().Shown().empty());
}

TEST_F(User, WithoutADialogThereIsNothingToActOn) {
  EXPECT_THROW(HeadlessUser(platform).Click("cmdButton"), std::logic_error);
}

}  // namespace
}  // namespace plexel

#include "services/shared_services.h"

#include <gtest/gtest.h>

#include <tuple>

#include "forms/form.h"
#include "platform/platform_in_force.h"
#include "services/led_functions.h"
#include "services/setting_table.h"
#include "world/world.h"

namespace plexel {
namespace {

class SharedServices : public testing::Test, protected World {};

/// A form with a text on every kind of control that has one.
class SampleForm : public Form {
 public:
  SampleForm() : Form("frmSample") {
    Caption("@1");
    cmdOK.Caption("@2");
    txtNote.Text("@3");
    sstPages.TabCaption(0, "@4");
    sstPages.TabCaption(1, "@5");
    stbStatus.SimpleText("@6");
  }
  CommandButton cmdOK{*this, "cmdOK"};
  TextBox txtNote{*this, "txtNote"};
  TabStrip sstPages{*this, "sstPages", 2};
  StatusBar stbStatus{*this, "stbStatus"};
};

TEST_F(SharedServices, ATextComesFromTheLanguageService) {
  surroundings.Language().Set(100, "OK");
  EXPECT_EQ(GetText(100), "OK");
}

TEST_F(SharedServices, ANumberWithoutATextGivesAnEmptyText) { EXPECT_EQ(GetText(100), ""); }

TEST(SettingTable, HasEachSettingWithItsNumberItsDefaultAndItsBounds) {
  using Told = std::tuple<std::string_view, bool, std::int32_t, std::int32_t, std::int32_t, std::int32_t>;
  std::vector<Told> told;
  for (const SettingRow& row : SettingTable) {
    told.emplace_back(row.name, row.isSwitch, row.number, row.initial, row.low, row.high);
  }
  EXPECT_EQ(told, (std::vector<Told>{{"ShowCodeBalance", true, 1, 1, 0, 1},
                                     {"UseWizard", true, 2, 0, 0, 1},
                                     {"ShowX", true, 3, 0, 0, 1},
                                     {"ShowXPermanent", true, 4, 0, 0, 1},
                                     {"ShowDefined", true, 5, 1, 0, 1},
                                     {"LockTaskKeys", true, 9, 1, 0, 1},
                                     {"XSize", false, 0, 1, 0, 2},
                                     {"FocusWidth", false, 1, 1, 0, 255},
                                     {"FocusColor", false, 2, 255, 0, 0xFFFFFF},
                                     {"CaptureColor", false, 3, 65535, 0, 0xFFFFFF},
                                     {"DefinedColor", false, 5, 32768, 0, 0xFFFFFF}}));
}

TEST_F(SharedServices, AFailingLanguageServiceReachesTheCaller) {
  platform.faults.Turn(Fault::Language, true);
  EXPECT_THROW(GetText(100), Failure);
}

TEST_F(SharedServices, TranslatingReplacesCaptionsAndTextsOfTheFormAndItsControls) {
  for (std::int32_t number = 1; number <= 6; ++number) {
    surroundings.Language().Set(number, "text " + std::to_string(number));
  }
  SampleForm form;
  TranslateForm(form, "@");
  EXPECT_EQ(form.Caption(), "text 1");
  EXPECT_EQ(form.cmdOK.Caption(), "text 2");
  EXPECT_EQ(form.txtNote.Text(), "text 3");
  EXPECT_EQ(form.sstPages.TabCaption(0), "text 4");
  EXPECT_EQ(form.sstPages.TabCaption(1), "text 5");
  EXPECT_EQ(form.stbStatus.SimpleText(), "text 6");
}

TEST_F(SharedServices, AMarkerWithoutATextStays) {
  SampleForm form;
  TranslateForm(form, "@");
  EXPECT_EQ(form.Caption(), "@1");
  EXPECT_EQ(form.cmdOK.Caption(), "@2");
}

TEST_F(SharedServices, TextBehindTheNumberIsReplacedWithTheMarker) {
  surroundings.Language().Set(1, "one");
  surroundings.Language().Set(10, "ten");
  for (const std::string rest : {"", " ", "a", " more", "@2", "-2"}) {
    SampleForm form;
    form.Caption("@10" + rest);
    form.cmdOK.Caption("@1" + rest);
    TranslateForm(form, "@");
    EXPECT_EQ(form.Caption(), "ten") << rest;
    EXPECT_EQ(form.cmdOK.Caption(), "one") << rest;
  }
}

TEST_F(SharedServices, TheFirstTextIsNumberNought) {
  surroundings.Language().Set(0, "nought");
  SampleForm form;
  form.cmdOK.Caption("@0");
  TranslateForm(form, "@");
  EXPECT_EQ(form.cmdOK.Caption(), "nought");
}

TEST_F(SharedServices, ATextThatDoesNotBeginWithThePrefixAndANumberStays) {
  surroundings.Language().Set(1, "one");
  for (const std::string caption : {"", "@", "1", "@a1", "@ 1", "@-1", " @1", "@99999999999", "#1"}) {
    SampleForm form;
    form.cmdOK.Caption(caption);
    TranslateForm(form, "@");
    EXPECT_EQ(form.cmdOK.Caption(), caption);
  }
}

TEST_F(SharedServices, ThePrefixIsTheCallersChoice) {
  surroundings.Language().Set(1, "one");
  SampleForm form;
  form.cmdOK.Caption("##1");
  TranslateForm(form, "##");
  EXPECT_EQ(form.cmdOK.Caption(), "one");
  EXPECT_EQ(form.Caption(), "@1");
}

TEST_F(SharedServices, AFailureWhileTranslatingReachesTheCallerAndKeepsWhatWasDone) {
  surroundings.Language().Set(1, "one");
  surroundings.Language().Set(2, "two");
  platform.faults.Arm(Fault::Language, 2);
  SampleForm form;
  EXPECT_THROW(TranslateForm(form, "@"), Failure);
  EXPECT_EQ(form.Caption(), "one");
  EXPECT_EQ(form.cmdOK.Caption(), "@2");
}

TEST_F(SharedServices, SettingsComeFromTheSettingsService) {
  surroundings.Settings().Option(3, Boolean::Raw(1));
  surroundings.Settings().Parameter(2, "4711");
  surroundings.Settings().Position(1, "600");
  surroundings.Settings().BasePath("base");
  surroundings.Settings().LanguageName("German");
  EXPECT_EQ(GetOption(3), Boolean::Raw(1));
  EXPECT_EQ(GetParameter(2), "4711");
  EXPECT_EQ(GetWindowPosition(1), "600");
  EXPECT_EQ(GetBasePath(), "base");
  EXPECT_EQ(GetLanguageName(), "German");
}

TEST_F(SharedServices, AFailingSettingsServiceReachesTheCaller) {
  platform.faults.Turn(Fault::Settings, true);
  EXPECT_THROW(GetOption(1), Failure);
  EXPECT_THROW(GetParameter(1), Failure);
  EXPECT_THROW(GetWindowPosition(1), Failure);
  EXPECT_THROW(GetBasePath(), Failure);
  EXPECT_THROW(GetLanguageName(), Failure);
}

TEST_F(SharedServices, ATargetHasWhatTheCapabilityServiceAnswersWithOne) {
  surroundings.Capabilities().Set("T", Capability::HasRunLed, 1);
  EXPECT_TRUE(TargetHas(Capability::HasRunLed, "T"));
  EXPECT_FALSE(TargetHas(Capability::HasRunLed, "U"));
}

TEST_F(SharedServices, AnyOtherAnswerOfTheCapabilityServiceIsNo) {
  for (const std::int32_t answer : {-1, 0, 2}) {
    surroundings.Capabilities().Set("T", Capability::HasRunLed, answer);
    EXPECT_FALSE(TargetHas(Capability::HasRunLed, "T")) << answer;
  }
}

TEST_F(SharedServices, PlatformIdOneGivesFamilyZero) {
  Module().lngOsFamily = 1;
  platform.Version().PlatformId(1);
  DetermineOsFamily();
  EXPECT_EQ(Module().lngOsFamily, 0);
}

TEST_F(SharedServices, AnyOtherPlatformIdGivesFamilyOne) {
  for (const std::int32_t id : {0, 2, 3, -1}) {
    Module().lngOsFamily = 0;
    platform.Version().PlatformId(id);
    DetermineOsFamily();
    EXPECT_EQ(Module().lngOsFamily, 1) << id;
  }
}

TEST_F(SharedServices, AFailingVersionCallLeavesTheFamily) {
  Module().lngOsFamily = 5;
  platform.faults.Turn(Fault::Version, true);
  EXPECT_THROW(DetermineOsFamily(), Failure);
  EXPECT_EQ(Module().lngOsFamily, 5);
}

TEST_F(SharedServices, LogicalPixelsComeFromAContextThatIsGivenBack) {
  platform.TheScreen().LogicalPixels(144);
  EXPECT_EQ(GetScreenLogPixels(), 144);
  EXPECT_EQ(platform.TheScreen().OpenContexts(), 0);
}

TEST_F(SharedServices, AContextIsGivenBackWhenAskingItFails) {
  platform.faults.Arm(Fault::Screen, 2);
  EXPECT_THROW(GetScreenLogPixels(), Failure);
  EXPECT_EQ(platform.TheScreen().OpenContexts(), 0);
}

TEST_F(SharedServices, NinetySixPixelsAreFactorOne) { EXPECT_EQ(GetDpiScaleFactor(), 1.0); }

TEST_F(SharedServices, A120PixelScreenHasFactorOneAndAQuarter) {
  platform.TheScreen().LogicalPixels(120);
  EXPECT_EQ(GetDpiScaleFactor(), 1.25);
}

TEST_F(SharedServices, TheHelpFileNameFollowsTheLanguage) {
  surroundings.Settings().BasePath("C:\\Editor");
  surroundings.Settings().LanguageName("German");
  EXPECT_EQ(HelpFileName(), "C:\\Editor\\Help\\PlexelGerman.chm");
}

TEST_F(SharedServices, AHelpTopicOpensWithoutAnOwner) {
  surroundings.Settings().BasePath("B");
  ShowHelpTopic(77, 2000);
  ASSERT_EQ(platform.Help().Shown().size(), 1U);
  const HeadlessHelp::Topic& shown = platform.Help().Shown().front();
  EXPECT_EQ(shown.owner, 0);
  EXPECT_EQ(shown.file, "B\\Help\\PlexelEnglish.chm");
  EXPECT_EQ(shown.command, 15);
  EXPECT_EQ(shown.topic, 2000);
}

TEST_F(SharedServices, EachHelpTopicBuildsTheNameAnew) {
  ShowHelpTopic(0, 1);
  surroundings.Settings().LanguageName("German");
  ShowHelpTopic(0, 2);
  EXPECT_EQ(platform.Help().Shown()[0].file, "\\Help\\PlexelEnglish.chm");
  EXPECT_EQ(platform.Help().Shown()[1].file, "\\Help\\PlexelGerman.chm");
}

class LedNames : public SharedServices {
 protected:
  LedNames() {
    for (const std::int32_t number : numbers) surroundings.Language().Set(number, "led " + std::to_string(number));
  }
  /// The language numbers of the values 0 to 14.
  static constexpr std::array<std::int32_t, 15> numbers = {10401, 10400, 10402, 10403, 10404, 10405, 10406, 10407,
                                                           10408, 10409, 10410, 10411, 10412, 10413, 10961};
};

TEST_F(LedNames, EveryTypeHasTheTextOfItsNumber) {
  for (std::int32_t type = 0; type < 15; ++type) {
    EXPECT_EQ(LedTypeToText(type), "led " + std::to_string(numbers[static_cast<std::size_t>(type)]));
  }
}

TEST_F(LedNames, EveryTextGivesItsType) {
  for (std::int32_t type = 0; type < 15; ++type) {
    EXPECT_EQ(LedTextToType("led " + std::to_string(numbers[static_cast<std::size_t>(type)])), type);
  }
}

TEST(LedFunctions, EachIsAskedForByTheQueryOfItsName) {
  for (const LedFunction& function : LedFunctions) {
    const bool asked = function.type != LedNotEnabled;
    ASSERT_EQ(function.query.has_value(), asked) << function.type;
    if (!asked) continue;
    EXPECT_EQ(CapabilityNamed(CapabilityName(*function.query)), function.query) << function.type;
  }
  const Capability expected[] = {
      Capability::HasHarddiskLed, Capability::HasUserLed,        Capability::HasTemperatureLed,
      Capability::HasPowerLed,    Capability::HasCapsLockLed,    Capability::HasNumLockLed,
      Capability::HasLayer1Led,   Capability::HasLayer2Led,      Capability::HasLayer3Led,
      Capability::HasLayer4Led,   Capability::HasPanelLockedLed, Capability::HasScrollLockLed,
      Capability::HasAlarmLed};
  for (std::size_t type = 0; type < std::size(expected); ++type) EXPECT_EQ(LedFunctions[type].query, expected[type]);
  EXPECT_EQ(LedFunctions[RunLed].query, Capability::HasRunLed);
}

TEST(SettingTable, EveryRowIsFoundByItsNumber) {
  for (const SettingRow& row : SettingTable) EXPECT_EQ(FindSetting(row.isSwitch, row.number), &row) << row.name;
  EXPECT_EQ(FindSetting(true, 0), nullptr);
  EXPECT_EQ(FindSetting(false, 4), nullptr);
}

TEST_F(LedNames, TheTextsOfHarddiskAndUserStandCrosswise) {
  EXPECT_EQ(LedTypeToText(HarddiskLed), "led 10401");
  EXPECT_EQ(LedTypeToText(UserLed), "led 10400");
}

TEST_F(LedNames, OutsideTheTypesTheTextIsEmpty) {
  EXPECT_EQ(LedTypeToText(15), "");
  EXPECT_EQ(LedTypeToText(-1), "");
}

TEST_F(LedNames, AnUnknownTextIsNotEnabled) {
  EXPECT_EQ(LedTextToType("no such LED"), LedNotEnabled);
  EXPECT_EQ(LedTextToType(""), LedNotEnabled);
}

TEST_F(LedNames, TheComparisonIsExact) {
  EXPECT_EQ(LedTextToType("LED 10403"), LedNotEnabled);
  EXPECT_EQ(LedTextToType("led 10403 "), LedNotEnabled);
}

TEST_F(LedNames, OfEqualTextsTheFirstInTheOrderOfNumbersWins) {
  for (const std::int32_t number : numbers) surroundings.Language().Set(number, "same");
  EXPECT_EQ(LedTextToType("same"), UserLed);
}

TEST_F(LedNames, TheRunLedIsComparedLast) {
  surroundings.Language().Set(10413, "same");
  surroundings.Language().Set(10961, "same");
  EXPECT_EQ(LedTextToType("same"), LedNotEnabled);
}

/// A registry that keeps the calls as they come.
class CallRegistry : public Registry {
 public:
  std::int32_t OpenKey(std::uint32_t root, std::string_view path, std::int32_t options, std::int32_t access,
                       std::intptr_t& key) override {
    calls.push_back(std::to_string(root) + ' ' + std::string(path) + ' ' + std::to_string(options) + ' ' +
                    std::to_string(access));
    if (opens) key = 5;
    return opens ? 0 : 2;
  }
  std::int32_t SetValue(std::intptr_t key, std::string_view name, std::int32_t reserved, std::int32_t type,
                        std::string_view text, std::int32_t length) override {
    calls.push_back(std::to_string(key) + ' ' + std::string(name) + ' ' + std::to_string(reserved) + ' ' +
                    std::to_string(type) + ' ' + std::string(text) + ' ' + std::to_string(length));
    return 5;
  }
  std::int32_t CloseKey(std::intptr_t key) override {
    calls.push_back("close " + std::to_string(key));
    return 5;
  }
  bool opens = true;
  std::vector<std::string> calls;
};

/// A platform whose registry keeps its calls.
class RegistryPlatform : public Platform {
 public:
  KeyboardHooks& Hooks() override { return rest_.Hooks(); }
  KeyState& Keys() override { return rest_.Keys(); }
  KeyboardLayout& Layout() override { return rest_.Layout(); }
  Registry& UserRegistry() override { return registry; }
  Screen& TheScreen() override { return rest_.TheScreen(); }
  OsVersion& Version() override { return rest_.Version(); }
  HelpViewer& Help() override { return rest_.Help(); }
  ModalLoop& Modal() override { return rest_.Modal(); }
  MessageBoxes& Messages() override { return rest_.Messages(); }
  EventPump& Events() override { return rest_.Events(); }
  CallRegistry registry;

 private:
  HeadlessPlatform rest_;
};

TEST(SavedPositions, TheRegistryGetsTheKeyTheTypeAndTheLength) {
  RegistryPlatform platform;
  const PlatformInForce use(platform);
  StorePositions({{SavedTop, "22.5"}});
  const std::vector<std::string> expected = {"2147483649 SOFTWARE\\TALVEN\\PLEXEL\\PARAMETERS 0 2",
                                             "5 ConfigDialogTop 0 1 22.5 4", "close 5"};
  EXPECT_EQ(platform.registry.calls, expected);
}

TEST(SavedPositions, AKeyThatCannotBeOpenedIsNone) {
  RegistryPlatform platform;
  const PlatformInForce use(platform);
  platform.registry.opens = false;
  StorePositions({{SavedTop, "22.5"}});
  const std::vector<std::string> expected = {"2147483649 SOFTWARE\\TALVEN\\PLEXEL\\PARAMETERS 0 2",
                                             "0 ConfigDialogTop 0 1 22.5 4", "close 0"};
  EXPECT_EQ(platform.registry.calls, expected);
}

TEST(Surroundings, WithoutAnyAskingFails) {
  try {
    GetParameter(0);
    ADD_FAILURE() << "no failure";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Kind(), FailureKind::ObjectNotSet);
    EXPECT_STREQ(failure.what(), "no surroundings are in force");
  }
}

TEST_F(SharedServices, PositionsAreStoredUnderTheComponentsKey) {
  StorePositions({{SavedTop, "1530"}});
  const MemoryRegistry::Values expected = {{"ConfigDialogTop", "1530"}};
  EXPECT_EQ(platform.UserRegistry().Stored(), expected);
  EXPECT_EQ(platform.UserRegistry().OpenKeys(), 0);
}

TEST_F(SharedServices, AStoredPositionIsReadBackThroughTheSettings) {
  StorePositions({{SavedLeft, "22.5"}});
  EXPECT_EQ(GetWindowPosition(1), "22.5");
}

TEST_F(SharedServices, ARegistryThatThrowsAnythingIsClosedAllTheSame) {
  for (const auto& thrower : {std::function<void()>([] { throw 7; }),
                              std::function<void()>([] { throw Failure(FailureKind::Platform, "refused"); })}) {
    platform.faults.Thrown(thrower);
    platform.faults.Arm(Fault::Registry, 2);
    EXPECT_ANY_THROW(StorePositions({{SavedTop, "1"}, {SavedLeft, "2"}}));
    EXPECT_EQ(platform.UserRegistry().OpenKeys(), 0);
    EXPECT_TRUE(platform.UserRegistry().Stored().empty());
  }
}

TEST_F(SharedServices, ARegistryThatRefusesIsNotLookedAt) {
  platform.faults.Turn(Fault::Registry, true);
  EXPECT_NO_THROW(StorePositions({{SavedTop, "1"}}));
  EXPECT_TRUE(platform.UserRegistry().Stored().empty());
}

}  // namespace
}  // namespace plexel

#include <gtest/gtest.h>

#include "headless/headless_surroundings.h"
#include "platform/failure.h"

namespace plexel {
namespace {

class HeadlessServices : public testing::Test {
 protected:
  std::string Position(std::int32_t number) {
    std::string text;
    surroundings.Settings().GetWindowPosition(number, text);
    return text;
  }
  std::string Text(std::int32_t number) {
    std::string text;
    surroundings.Language().GetText(number, text);
    return text;
  }
  void Store(std::string_view name, std::string_view value) {
    std::intptr_t key = 0;
    platform.UserRegistry().OpenKey(Registry::CurrentUser, "SOFTWARE\\TALVEN\\PLEXEL\\PARAMETERS", 0, 2, key);
    platform.UserRegistry().SetValue(key, name, 0, 1, value, static_cast<std::int32_t>(value.size()));
  }
  HeadlessPlatform platform;
  HeadlessSurroundings surroundings{platform};
};

TEST_F(HeadlessServices, APositionComesFromTheRegistryWhereItHoldsOne) {
  EXPECT_EQ(Position(0), "1500");
  Store("ConfigDialogTop", "77");
  EXPECT_EQ(Position(0), "77");
}

TEST_F(HeadlessServices, APositionThatWasSetStandsOverTheRegistry) {
  Store("ConfigDialogLeft", "77");
  surroundings.Settings().Position(1, "");
  EXPECT_EQ(Position(1), "");
}

TEST_F(HeadlessServices, ThereIsNoSixthPosition) { EXPECT_EQ(Position(5), ""); }

TEST_F(HeadlessServices, AnUnsetOptionIsFalse) {
  Boolean value = True;
  surroundings.Settings().GetOption(9, value);
  EXPECT_EQ(value, False);
}

TEST_F(HeadlessServices, AnOptionKeepsAnyValue) {
  surroundings.Settings().Option(1, Boolean::Raw(7));
  Boolean value = False;
  surroundings.Settings().GetOption(1, value);
  EXPECT_EQ(value, Boolean::Raw(7));
}

TEST_F(HeadlessServices, TheLanguageIsReadAtTheFirstQuestion) {
  int readings = 0;
  surroundings.Language().Source([&readings] {
    ++readings;
    return HeadlessLanguage::Texts{{100, "OK"}};
  });
  EXPECT_EQ(readings, 0);
  EXPECT_EQ(Text(100), "OK");
  EXPECT_EQ(Text(101), "");
  EXPECT_EQ(readings, 1);
}

TEST_F(HeadlessServices, ALanguageThatCannotBeReadFailsAtEachQuestion) {
  surroundings.Language().Source([]() -> HeadlessLanguage::Texts { throw Failure(FailureKind::Platform, "no file"); });
  EXPECT_THROW(Text(100), Failure);
  EXPECT_THROW(Text(100), Failure);
}

TEST_F(HeadlessServices, ATextThatWasSetStandsOverEachLanguage) {
  surroundings.Language().Set(100, "Fine");
  surroundings.Language().Source([] { return HeadlessLanguage::Texts{{100, "OK"}}; });
  EXPECT_EQ(Text(100), "Fine");
}

TEST_F(HeadlessServices, AnAnswerForATargetStandsOverTheOneForAll) {
  surroundings.Capabilities().Set("*", Capability::HasRunLed, 1);
  surroundings.Capabilities().Set("small", Capability::HasRunLed, 0);
  EXPECT_EQ(surroundings.Capabilities().Ask(Capability::HasRunLed, "large"), 1);
  EXPECT_EQ(surroundings.Capabilities().Ask(Capability::HasRunLed, "small"), 0);
  EXPECT_EQ(surroundings.Capabilities().Ask(Capability::HasAlarmLed, "large"), 0);
}

TEST_F(HeadlessServices, WithoutAReaderEveryEntryIsMissing) {
  std::string value;
  std::int32_t status = 0;
  surroundings.ParameterFiles().ReadEntry("f", "s", "n", value, 0, status);
  EXPECT_NE(status, 0);
}

TEST_F(HeadlessServices, EachServiceFailsWhenTold) {
  for (const Fault fault : {Fault::Language, Fault::Settings, Fault::Capability, Fault::ParameterFiles}) {
    platform.faults.Turn(fault, true);
  }
  std::string text;
  EXPECT_THROW(Text(100), Failure);
  EXPECT_THROW(surroundings.Settings().GetBasePath(text), Failure);
  EXPECT_THROW(surroundings.Settings().GetLanguageName(text), Failure);
  EXPECT_THROW(surroundings.Settings().GetParameter(0, text), Failure);
  EXPECT_THROW(Position(0), Failure);
  EXPECT_THROW(surroundings.Capabilities().Ask(Capability::HasRunLed, ""), Failure);
  EXPECT_THROW(surroundings.ParameterFiles().SetDelimiter(":"), Failure);
}

}  // namespace
}  // namespace plexel

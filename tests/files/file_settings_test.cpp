#include "files/file_settings.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <memory>

#include "file_error_of.h"
#include "files/text_lines.h"
#include "platform/failure.h"
#include "world/file_faults.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* KeyPath = "SOFTWARE\\SAMPLE\\KEY";

/// Settings and registry in a directory of their own.
class SettingsFiles : public testing::Test {
 protected:
  FileSettings Settings() { return {directory_ / "c/settings.ini", "/base", *registry_}; }
  FileRegistry NewRegistry() { return {directory_ / "c/registry.ini", KeyPath}; }
  void PutSettings(std::string_view content) {
    std::filesystem::create_directory(directory_ / "c");
    directory_.Put("c/settings.ini", content);
  }
  void PutRegistry(std::string_view content) {
    std::filesystem::create_directory(directory_ / "c");
    directory_.Put("c/registry.ini", content);
  }
  static std::string Parameter(FileSettings settings, std::int32_t number) {
    std::string text;
    settings.GetParameter(number, text);
    return text;
  }
  static Boolean Option(FileSettings settings, std::int32_t number) {
    Boolean value = Boolean::Raw(77);
    settings.GetOption(number, value);
    return value;
  }
  static std::string Position(FileSettings settings, std::int32_t number) {
    std::string text;
    settings.GetWindowPosition(number, text);
    return text;
  }
  static std::int32_t Store(FileRegistry& registry, std::string_view name, std::string_view text) {
    std::intptr_t key = 0;
    if (registry.OpenKey(Registry::CurrentUser, KeyPath, 0, Registry::AccessSetValue, key) != 0) return -1;
    const std::int32_t result =
        registry.SetValue(key, name, 0, Registry::TypeText, text, static_cast<std::int32_t>(text.size()));
    const std::int32_t closed = registry.CloseKey(key);
    return result != 0 ? result : closed;
  }

  TemporaryDirectory directory_;
  std::unique_ptr<FileRegistry> registry_ = std::make_unique<FileRegistry>(directory_ / "c/registry.ini", KeyPath);
};

TEST_F(SettingsFiles, WithoutAFileTheDefaultsHold) {
  EXPECT_EQ(Option(Settings(), 1), True);
  EXPECT_EQ(Option(Settings(), 2), False);
  EXPECT_EQ(Option(Settings(), 5), True);
  EXPECT_EQ(Option(Settings(), 9), True);
  EXPECT_EQ(Parameter(Settings(), 0), "1");
  EXPECT_EQ(Parameter(Settings(), 1), "1");
  EXPECT_EQ(Parameter(Settings(), 2), "255");
  EXPECT_EQ(Parameter(Settings(), 3), "65535");
  EXPECT_EQ(Parameter(Settings(), 5), "32768");
  EXPECT_EQ(Settings().Language(), "English");
  EXPECT_THAT(Settings().Problems(), IsEmpty());
}

TEST_F(SettingsFiles, EveryDefaultLiesWithinItsBounds) {
  for (const SettingRow& row : SettingTable) {
    EXPECT_GE(row.initial, row.low) << row.name;
    EXPECT_LE(row.initial, row.high) << row.name;
  }
}

TEST_F(SettingsFiles, AnOptionThatDoesNotExistIsFalse) { EXPECT_EQ(Option(Settings(), 8), False); }

TEST_F(SettingsFiles, AParameterThatDoesNotExistIsEmpty) { EXPECT_EQ(Parameter(Settings(), 4), ""); }

TEST_F(SettingsFiles, TheBasePathIsTheGivenDirectory) {
  std::string text;
  Settings().GetBasePath(text);
  EXPECT_EQ(text, "/base");
}

TEST_F(SettingsFiles, SavedSettingsComeBack) {
  FileSettings settings = Settings();
  settings.Language("German");
  for (const SettingRow& row : SettingTable) settings.Value(row, row.high);
  settings.Save();
  const FileSettings again = Settings();
  EXPECT_THAT(again.Problems(), IsEmpty());
  EXPECT_EQ(again.Language(), "German");
  for (const SettingRow& row : SettingTable) EXPECT_EQ(again.Value(row), row.high) << row.name;
}

TEST_F(SettingsFiles, AValueOutsideItsBoundsIsRefused) {
  FileSettings settings = Settings();
  for (const SettingRow& row : SettingTable) {
    EXPECT_THROW(settings.Value(row, row.low - 1), Failure) << row.name;
    EXPECT_THROW(settings.Value(row, row.high + 1), Failure) << row.name;
    EXPECT_EQ(settings.Value(row), row.initial) << row.name;
  }
}

TEST_F(SettingsFiles, ADamagedLineLeavesItsDefaultAndTheOtherLines) {
  PutSettings("[SETTINGS]\nFocusWidth=256\nUseWizard=1\n");
  const FileSettings settings = Settings();
  ASSERT_THAT(settings.Problems(), SizeIs(1));
  EXPECT_EQ(settings.Problems()[0].Line(), 2U);
  EXPECT_THAT(settings.Problems()[0].Reason(), HasSubstr("FocusWidth must be a number from 0 to 255"));
  EXPECT_EQ(Parameter(settings, 1), "1");
  EXPECT_EQ(Option(settings, 2), True);
}

TEST_F(SettingsFiles, ALanguageIsNamedByLettersHyphensAndUnderlines) {
  for (const std::string name : {"A", "Z", "a", "z", "-", "_", "Latin-American_Spanish"}) {
    PutSettings("[SETTINGS]\nLanguage=" + name + "\n");
    EXPECT_EQ(Settings().Language(), name);
  }
  // Those beside them in the code.
  for (const std::string name : {"@", "[", "`", "{", ",", ".", "^"}) {
    PutSettings("[SETTINGS]\nLanguage=a" + name + "\n");
    EXPECT_THAT(Settings().Problems(), SizeIs(1)) << name;
  }
}

TEST_F(SettingsFiles, EveryKindOfDamageIsToldWithItsLine) {
  for (const std::string_view fault :
       {"nonsense", "Unknown=1", "UseWizard=", "UseWizard=2", "UseWizard=-1", "XSize=3", "FocusColor=16777216",
        "FocusColor=99999999999", "Language=../secret", "Language=", "[OTHER]", "[SETTINGS"}) {
    PutSettings("[SETTINGS]\n" + std::string(fault) + "\n");
    const FileSettings settings = Settings();
    ASSERT_THAT(settings.Problems(), SizeIs(1)) << fault;
    EXPECT_EQ(settings.Problems()[0].Line(), 2U) << fault;
  }
}

TEST_F(SettingsFiles, AFileThatIsNoTextGivesTheDefaultsAndAFault) {
  PutSettings(std::string_view("UseWizard=1\n\0", 13));
  EXPECT_THAT(Settings().Problems(), SizeIs(1));
  EXPECT_EQ(Option(Settings(), 2), False);
}

TEST_F(SettingsFiles, AtMostTenFaultsAreTold) {
  std::string content;
  for (int line = 0; line < 1000; ++line) content += "bad\n";
  PutSettings(content);
  EXPECT_THAT(Settings().Problems(), SizeIs(10));
}

TEST_F(SettingsFiles, ADamagedFileStaysUntilTheUserSaves) {
  PutSettings("damage\n");
  FileSettings settings = Settings();
  EXPECT_EQ(Content(directory_ / "c/settings.ini"), "damage\n");
  settings.Save();
  EXPECT_THAT(settings.Problems(), IsEmpty());
  EXPECT_THAT(Settings().Problems(), IsEmpty());
}

TEST_F(SettingsFiles, EveryTruncationIsReadOrTold) {
  Settings().Save();
  const std::string whole = Content(directory_ / "c/settings.ini");
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    PutSettings(whole.substr(0, length));
    const FileSettings settings = Settings();
    for (const FileError& problem : settings.Problems()) EXPECT_GT(problem.Line(), 0U) << length;
  }
}

TEST_F(SettingsFiles, SavingWhereNothingCanBeWrittenIsAFault) {
  directory_.Put("c", "a file, no directory");
  EXPECT_THROW(Settings().Save(), FileError);
}

TEST_F(SettingsFiles, SavingWithoutFlushingTheDirectoryIsToldAndDone) {
  PutSettings("damage\n");
  FileSettings settings = Settings();
  {
    const FileFaults faults(directory_.Path(), "fsync of a directory", EIO);
    EXPECT_THROW(settings.Save(), FileWarning);
  }
  EXPECT_THAT(settings.Problems(), IsEmpty());
  EXPECT_THAT(Settings().Problems(), IsEmpty());
}

TEST_F(SettingsFiles, PositionsHaveDefaults) {
  EXPECT_EQ(Position(Settings(), 0), "1500");
  EXPECT_EQ(Position(Settings(), 1), "1800");
  EXPECT_EQ(Position(Settings(), 2), "735");
  EXPECT_EQ(Position(Settings(), 3), "3270");
  EXPECT_EQ(Position(Settings(), 4), "3270");
  EXPECT_EQ(Position(Settings(), 5), "");
}

TEST_F(SettingsFiles, PositionsComeFromTheRegistry) {
  EXPECT_EQ(Store(*registry_, "ConfigDialogTop", "22.5"), 0);
  EXPECT_EQ(Position(Settings(), 0), "22.5");
}

TEST_F(SettingsFiles, RegistryValuesComeBackInANewRegistry) {
  EXPECT_EQ(Store(*registry_, "ConfigDialogMsFlexGridRow0Width", "900"), 0);
  const FileRegistry again = NewRegistry();
  ASSERT_NE(again.Find("ConfigDialogMsFlexGridRow0Width"), nullptr);
  EXPECT_EQ(*again.Find("ConfigDialogMsFlexGridRow0Width"), "900");
}

TEST_F(SettingsFiles, OnlyTheComponentsKeyCanBeOpened) {
  std::intptr_t key = 0;
  EXPECT_NE(registry_->OpenKey(Registry::CurrentUser, "SOFTWARE\\OTHER", 0, Registry::AccessSetValue, key), 0);
  EXPECT_NE(registry_->OpenKey(0x80000002U, KeyPath, 0, Registry::AccessSetValue, key), 0);
  EXPECT_EQ(registry_->OpenKey(Registry::CurrentUser, "software\\sample\\key", 0, Registry::AccessSetValue, key), 0);
}

TEST_F(SettingsFiles, AKeyThatIsNotOpenTakesNoValue) {
  EXPECT_NE(registry_->SetValue(1, "Name", 0, Registry::TypeText, "1", 1), 0);
  EXPECT_NE(registry_->CloseKey(1), 0);
}

TEST_F(SettingsFiles, OnlyTheGivenLengthOfAValueIsStored) {
  std::intptr_t key = 0;
  ASSERT_EQ(registry_->OpenKey(Registry::CurrentUser, KeyPath, 0, Registry::AccessSetValue, key), 0);
  EXPECT_EQ(registry_->SetValue(key, "Name", 0, Registry::TypeText, "12345", 3), 0);
  EXPECT_EQ(*registry_->Find("Name"), "123");
}

TEST_F(SettingsFiles, AValueThatFitsNoLineIsRefused) {
  EXPECT_NE(Store(*registry_, "Name", "a\nb"), 0);
  EXPECT_NE(Store(*registry_, "", "a"), 0);
  EXPECT_NE(Store(*registry_, "a=b", "a"), 0);
  EXPECT_NE(Store(*registry_, "[a", "a"), 0);
  EXPECT_EQ(registry_->Find("Name"), nullptr);
}

TEST_F(SettingsFiles, ADamagedRegistryStaysUntilTheSettingsAreSaved) {
  PutRegistry("[" + std::string(KeyPath) + "]\nConfigDialogTop=7\ndamage\n");
  registry_ = std::make_unique<FileRegistry>(directory_ / "c/registry.ini", KeyPath);
  ASSERT_TRUE(registry_->Problem());
  EXPECT_EQ(registry_->Problem()->Line(), 3U);
  EXPECT_EQ(Position(Settings(), 0), "7");
  EXPECT_NE(Store(*registry_, "ConfigDialogTop", "8"), 0);
  EXPECT_THAT(Content(directory_ / "c/registry.ini"), HasSubstr("damage"));
  EXPECT_EQ(Position(Settings(), 0), "8");
  Settings().Save();
  EXPECT_EQ(Store(*registry_, "ConfigDialogTop", "9"), 0);
  EXPECT_EQ(*NewRegistry().Find("ConfigDialogTop"), "9");
}

}  // namespace
}  // namespace plexel

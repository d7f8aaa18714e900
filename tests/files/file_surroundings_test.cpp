#include "files/file_surroundings.h"

#include <gmock/gmock.h>

#include "files/data_directory.h"
#include "files/file_error.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using testing::ElementsAre;

std::string TextOf(LanguageService& language, std::int32_t number) {
  std::string text = "old";
  language.GetText(number, text);
  return text;
}

TEST(FileLanguage, ANumberWithoutATextIsEmpty) {
  FileLanguage language(DataDirectory() / "languages");
  language.Choose("English");
  EXPECT_EQ(TextOf(language, 4711), "");
}

TEST(FileLanguage, BeforeAChoiceEveryTextIsEmpty) {
  FileLanguage language(DataDirectory() / "languages");
  EXPECT_EQ(TextOf(language, 100), "");
}

TEST(FileLanguage, TheShippedLanguagesAreAvailable) {
  EXPECT_THAT(FileLanguage(DataDirectory() / "languages").Available(), ElementsAre("English", "German"));
}

TEST(FileLanguage, AChoiceThatFailsKeepsTheOldLanguage) {
  FileLanguage language(DataDirectory() / "languages");
  language.Choose("German");
  EXPECT_THROW(language.Choose("Klingon"), FileError);
  EXPECT_EQ(language.Chosen(), "German");
  EXPECT_EQ(TextOf(language, 101), "Abbrechen");
}

TEST(FileSurroundings, ChangingTheLanguageChangesTextsAndName) {
  const TemporaryDirectory directory;
  FileSurroundings surroundings(DataDirectory(), directory.Path());
  EXPECT_EQ(TextOf(surroundings.Language(), 101), "Cancel");
  surroundings.ChooseLanguage("German");
  EXPECT_EQ(TextOf(surroundings.Language(), 101), "Abbrechen");
  std::string name;
  surroundings.Settings().GetLanguageName(name);
  EXPECT_EQ(name, "German");
}

TEST(FileSurroundings, ALanguageThatIsGoneFallsBackToEnglishAndTellsWhy) {
  const TemporaryDirectory directory;
  directory.Put("settings.ini", "[SETTINGS]\nLanguage=Klingon\n");
  FileSurroundings surroundings(DataDirectory(), directory.Path());
  EXPECT_EQ(TextOf(surroundings.Language(), 101), "Cancel");
  EXPECT_TRUE(surroundings.LanguageProblem());
  EXPECT_EQ(surroundings.Settings().Language(), "English");
}

TEST(FileSurroundings, WithoutAnyLanguageThereIsAFault) {
  const TemporaryDirectory directory;
  EXPECT_THROW(FileSurroundings(directory.Path(), directory.Path()), FileError);
}

}  // namespace
}  // namespace plexel

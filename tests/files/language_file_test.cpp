#include "files/language_file.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <regex>
#include <set>
#include <vector>

#include "file_error_of.h"
#include "files/data_directory.h"
#include "files/file_error.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using testing::AllOf;
using testing::AnyOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;

LanguageTexts Read(std::string_view content) {
  const TemporaryDirectory directory;
  return ReadLanguageFile(directory.Put("x.lang", content));
}

std::size_t FaultyLine(std::string_view content) {
  const auto error = FileErrorOf([content] { Read(content); });
  return error ? error->Line() : 0;
}

LanguageTexts Shipped(std::string_view language) {
  return ReadLanguageFile(DataDirectory() / "languages" / (std::string(language) + ".lang"));
}

TEST(LanguageFile, BlanksAroundNumberAndTextDoNotCount) {
  EXPECT_THAT(Read(" 100 = OK \n\n# comment\r\n101=Cancel"), ElementsAre(Pair(100, "OK"), Pair(101, "Cancel")));
}

TEST(LanguageFile, EscapesGiveBlankLineBreakAndBackslash) {
  EXPECT_THAT(Read("1=a:\\s\n2=b\\nc\n3=\\\\s"), ElementsAre(Pair(1, "a: "), Pair(2, "b\nc"), Pair(3, "\\s")));
}

TEST(LanguageFile, ATextMayHoldEqualsSignsAndBeEmpty) {
  EXPECT_THAT(Read("1=a=b\n2="), ElementsAre(Pair(1, "a=b"), Pair(2, "")));
}

TEST(LanguageFile, AFaultyLineIsNamed) {
  for (const std::string_view fault : {"no text", "0=zero", "-1=minus", "2147483648=large", "1x=digits", "=none",
                                       "2=\\", "2=\\x", "2=\xFF", "1=twice"}) {
    EXPECT_EQ(FaultyLine("1=one\n" + std::string(fault) + "\n3=three"), 2U) << fault;
  }
}

TEST(LanguageFile, TheLargestNumberIsAccepted) { EXPECT_EQ(Read("2147483647=x").size(), 1U); }

TEST(LanguageFile, EveryTruncationIsReadOrRefusedWithALine) {
  const std::string whole =
      "\xEF\xBB\xBF"
      "100=OK\n2109=Zeichen:\\s\n112=Zur\xC3\xBC"
      "ck\n";
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const auto error = FileErrorOf([&] { Read(whole.substr(0, length)); });
    EXPECT_TRUE(!error || error->Line() > 0) << length;
  }
}

TEST(LanguageFile, AnEmptyFileHasNoTexts) { EXPECT_THAT(Read(""), IsEmpty()); }

TEST(ShippedLanguages, AllHaveTheSameNumbers) {
  std::set<std::int32_t> english;
  std::set<std::int32_t> german;
  for (const auto& [number, text] : Shipped("English")) english.insert(number);
  for (const auto& [number, text] : Shipped("German")) german.insert(number);
  EXPECT_EQ(english, german);
}

TEST(ShippedLanguages, NoTextIsEmpty) {
  for (const char* language : {"English", "German"}) {
    for (const auto& [number, text] : Shipped(language)) EXPECT_FALSE(text.empty()) << language << number;
  }
}

TEST(ShippedLanguages, EveryNumberThatTheSourcesUseIsThere) {
  const LanguageTexts texts = Shipped("English");
  const std::regex use("\"@([0-9]+)\"|GetText\\(([0-9]+)");
  const std::filesystem::path sources = DataDirectory().parent_path() / "src";
  for (const auto& entry : std::filesystem::recursive_directory_iterator(sources)) {
    if (!entry.is_regular_file()) continue;
    const std::string content = Content(entry.path());
    for (std::sregex_iterator match(content.begin(), content.end(), use), end; match != end; ++match) {
      const std::string number = (*match)[1].matched ? (*match)[1] : (*match)[2];
      EXPECT_TRUE(texts.contains(std::stoi(number))) << number << " in " << entry.path();
    }
  }
}

TEST(ShippedLanguages, TheWizardTellsHowRecordingStarts) {
  EXPECT_THAT(Shipped("English").at(2902), AllOf(HasSubstr("double-click"), HasSubstr("Return")));
  EXPECT_THAT(Shipped("German").at(2902), AllOf(HasSubstr("Doppelklick"), HasSubstr("Eingabetaste")));
}

TEST(ShippedLanguages, TheWizardsLastPagePromisesNoStoring) {
  EXPECT_THAT(Shipped("English").at(2909), Not(AnyOf(HasSubstr("configured"), HasSubstr("stored"))));
  EXPECT_THAT(Shipped("German").at(2909), Not(AnyOf(HasSubstr("konfiguriert"), HasSubstr("gespeichert"))));
}

TEST(ShippedLanguages, ThatNoLedFunctionIsFreeIsSaidWithoutAReason) {
  EXPECT_THAT(Shipped("English").at(2911), Not(HasSubstr("other elements")));
  EXPECT_THAT(Shipped("German").at(2911), Not(HasSubstr("anderen")));
}

/// Lists whose entries are told apart by their texts.
const std::vector<std::vector<std::int32_t>> ListsComparedByText = {
    {10400, 10401, 10402, 10403, 10404, 10405, 10406, 10407, 10408, 10409, 10410, 10411, 10412, 10413, 10961},
    {2600, 2601, 2602, 2603, 2604, 2605, 2606, 2607, 2608},
    {2610, 2611, 2612, 2613, 2614, 2615, 2616, 2617, 2618, 2619, 2620, 2621, 2622, 2623, 2624, 2625, 2626, 10928,
     10929}};

TEST(ShippedLanguages, EntriesComparedByTextDiffer) {
  for (const char* language : {"English", "German"}) {
    const LanguageTexts texts = Shipped(language);
    for (const std::vector<std::int32_t>& list : ListsComparedByText) {
      std::set<std::string> entries;
      for (const std::int32_t number : list) entries.insert(texts.at(number));
      EXPECT_EQ(entries.size(), list.size()) << language << list.front();
    }
  }
}

TEST(ShippedLanguages, EntriesComparedByTextHoldNoBrackets) {
  for (const char* language : {"English", "German"}) {
    const LanguageTexts texts = Shipped(language);
    for (const std::vector<std::int32_t>& list : ListsComparedByText) {
      for (const std::int32_t number : list) {
        EXPECT_EQ(texts.at(number).find_first_of("[]"), std::string::npos) << language << number;
      }
    }
  }
}

TEST(ShippedLanguages, TheCounterOfTheNoteEndsInABlank) {
  EXPECT_THAT(Shipped("English").at(2109), HasSubstr(": "));
  EXPECT_THAT(Shipped("German").at(2109), HasSubstr(": "));
}

TEST(ShippedLanguages, OnlyTheTextsOfTheEditorHoldMnemonics) {
  for (const char* language : {"English", "German"}) {
    for (const auto& [number, text] : Shipped(language)) {
      EXPECT_LE(std::count(text.begin(), text.end(), '&'), number >= 20100 ? 1 : 0) << number;
    }
  }
}

}  // namespace
}  // namespace plexel

#include "project/search.h"

#include <gtest/gtest.h>

#include "open_document.h"
#include "project/report.h"

namespace plexel {
namespace {

using Found = KeySearch::Found;

ReportRow Row() {
  ReportRow row;
  row.element = "F1";
  row.kind = "key";
  row.press = "[Ctrl Left+a\u2039\u203A]";
  row.led = "Festplatte";
  row.note = "Schlüssel der Öffnung";
  return row;
}

bool Finds(std::string_view words) { return TextSearch(words).Finds(SearchableText(Row(), "is still down")); }

TEST(TextSearch, FindsDefinitionsNotesLedNamesAndElementNames) {
  for (const char* const words : {"Ctrl Left+a", "Öffnung", "Festplatte", "F1", "key", "still"}) {
    EXPECT_TRUE(Finds(words)) << words;
  }
  EXPECT_FALSE(Finds("F2"));
}

TEST(TextSearch, CaseAndAccentsDoNotCount) {
  EXPECT_TRUE(Finds("SCHLUSSEL"));
  EXPECT_TRUE(Finds("öffnung"));
  EXPECT_TRUE(Finds("ctrl LEFT"));
}

TEST(TextSearch, EveryWordMustStandInAnyOrder) {
  EXPECT_TRUE(Finds("offnung ctrl"));
  EXPECT_FALSE(Finds("offnung shift"));
  EXPECT_FALSE(Finds("offnung xctrl")) << "each letter counts";
  EXPECT_FALSE(Finds("\"ctrl left\"xoffnung"));
}

TEST(TextSearch, WordsBetweenQuotationMarksBelongTogether) {
  EXPECT_TRUE(Finds("\"ctrl left\""));
  EXPECT_FALSE(Finds("\"left ctrl\""));
  EXPECT_FALSE(Finds("\"xctrl left\""));
  EXPECT_TRUE(Finds("\"der off"));
}

TEST(TextSearch, NoWordReachesFromOneTextIntoTheNext) { EXPECT_FALSE(Finds("F1key")); }

TEST(TextSearch, NothingThatCanBeTypedStandsBetweenTheTexts) {
  for (const char sign : std::string_view("!#$%&'()*,-./:;<=>?@\\^_`{|}~"))
    EXPECT_FALSE(Finds(std::string(1, sign))) << sign;
}

TEST(TextSearch, WithoutWordsItFindsEverything) {
  EXPECT_TRUE(Finds(""));
  EXPECT_TRUE(Finds("  \"\" "));
  EXPECT_TRUE(TextSearch(" \t").IsEmpty());
}

TEST(TextSearch, MarksATextThatHasOneOfTheWords) {
  EXPECT_TRUE(TextSearch("x ctrl").Marks("[Ctrl Left]"));
  EXPECT_FALSE(TextSearch("x shift").Marks("[Ctrl Left]"));
  EXPECT_FALSE(TextSearch("").Marks("[Ctrl Left]"));
}

/// A record whose first layer sends these groups.
udtTactisBaseElement_ScanCodeInfo Sending(std::initializer_list<std::uint8_t> press,
                                          std::initializer_list<std::uint8_t> release = {}) {
  udtTactisBaseElement_ScanCodeInfo record;
  const auto put = [](udtTactisBaseElement_TACTIS_SCANCODE& buffer, std::initializer_list<std::uint8_t> bytes) {
    for (const std::uint8_t byte : bytes) buffer.Value[static_cast<std::size_t>(++buffer.NextValue)] = byte;
  };
  put(record.strLayer1PressScanCode, press);
  put(record.strLayer1ReleaseScanCode, release);
  return record;
}

TEST(KeySearch, FindsAKeyByWhatItSendsGoingDown) {
  const auto record = Sending({0x08, 0xF0, 0x08, 0xFF});
  EXPECT_EQ(KeySearch({0x08}).In(record, 1), (Found{true, false}));
  EXPECT_FALSE(KeySearch({0x08}).In(record, 2));
  EXPECT_FALSE(KeySearch({0x08}).In(record, 0));
  EXPECT_FALSE(KeySearch({0x10}).In(record, 1));
}

TEST(KeySearch, AKeyThatOnlyComesUpIsNotSent) { EXPECT_FALSE(KeySearch({0x1C}).In(Sending({0xF0, 0x1C, 0xFF}), 1)); }

TEST(KeySearch, TellsWhetherPressOrReleaseSendsIt) {
  const Found found = KeySearch({0x1C}).In(Sending({0x1B, 0xFF}, {0x1C, 0xFF}), 1);
  EXPECT_EQ(found, (Found{false, true}));
  EXPECT_TRUE(found);
}

TEST(KeySearch, AnExtendedKeyIsAnotherOne) {
  EXPECT_TRUE(KeySearch({0xE074}).In(Sending({0xE0, 0x74, 0xFF}), 1));
  EXPECT_FALSE(KeySearch({0x74}).In(Sending({0xE0, 0x74, 0xFF}), 1));
}

TEST(KeySearch, OfAChordAllKeysMustBeDownTogether) {
  EXPECT_TRUE(KeySearch({0x14, 0x1C}).In(Sending({0x14, 0x1C, 0xF0, 0x1C, 0xF0, 0x14, 0xFF}), 1));
  EXPECT_FALSE(KeySearch({0x14, 0x1C}).In(Sending({0x14, 0xF0, 0x14, 0xFF, 0x1C, 0xF0, 0x1C, 0xFF}), 1));
}

TEST(KeySearch, AChordMayBeginOnPressAndEndOnRelease) {
  EXPECT_EQ(KeySearch({0x14, 0x1C}).In(Sending({0x14, 0xFF}, {0x1C, 0xF0, 0x1C, 0xF0, 0x14, 0xFF}), 1),
            (Found{false, true}));
}

TEST(KeySearch, FindsACommandToThePanel) {
  EXPECT_TRUE(KeySearch({0xF2}).In(Sending({0xF2, 0xFF}), 1));
  EXPECT_FALSE(KeySearch({0xE8}).In(Sending({0xE8, 0xFF}), 1)) << "a byte that is nothing";
}

TEST(KeySearch, TellsItsKeysByName) {
  EXPECT_EQ(KeySearch({0x14, 0x08, 0x14}).Text(), "Ctrl Left + F13");
  EXPECT_EQ(KeySearch({0xF2}).Text().find("F2"), std::string::npos) << "a command is no key";
}

class SearchOfDocument : public OpenDocument {};

TEST_F(SearchOfDocument, FindsThePlacesThatSendAKey) {
  PutBytes("F2", {0xFF, 0x08, 0xF0, 0x08, 0xFF});
  std::vector<std::string> found;
  for (const PanelDocument::Place& place : document->Places()) {
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      const Found where = KeySearch({0x08}).In(place.element->TactisBaseElementScanCodeBuffer(), layer);
      if (where.release) found.push_back(place.element->Name() + " " + std::to_string(layer));
    }
  }
  EXPECT_EQ(found, std::vector<std::string>{"F2 2"});
}

}  // namespace
}  // namespace plexel

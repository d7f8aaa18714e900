#include "project/plain_text.h"

#include <gtest/gtest.h>

#include <string>

#include "project/json_text.h"

namespace plexel {
namespace {

TEST(MarkupText, KeepsWhatXmlKnowsAndReplacesTheRest) {
  for (const char* const kept : {"\t", "\n", "\r", " ", "~", "\u0080", "\uD7FF", "\uFFFD"})
    EXPECT_EQ(MarkupText(kept), kept);
  for (const char* const other : {"\x01", "\x08", "\x0B", "\x0C", "\x0E", "\x1F", "\x7F", "\uFFFE", "\uFFFF", "\xFF"}) {
    EXPECT_EQ(MarkupText(other), "\uFFFD") << static_cast<int>(other[0]);
  }
  EXPECT_EQ(MarkupText("<a href=\"x\">&'"), "&lt;a href=&quot;x&quot;&gt;&amp;&#39;");
}

std::string Json(std::string_view text) {
  std::string json;
  AppendJsonText(json, text);
  return json;
}

TEST(JsonText, EscapesWhatCannotBeSeenAndNothingBesideIt) {
  for (const char* const seen :
       {" ", "~", "\u00A0", "\u200A", "\u2010", "\u2027", "\u202F", "\u2065", "\u206A", "\uFEFE"}) {
    EXPECT_EQ(Json(seen), std::string("\"") + seen + '"');
  }
  EXPECT_EQ(Json("\x1F\x7F\u009F"), R"("\u001F\u007F\u009F")");
  EXPECT_EQ(Json("\u200B\u200F\u2028\u202E\u2066\u2069\uFEFF"), R"("\u200B\u200F\u2028\u202E\u2066\u2069\uFEFF")");
  EXPECT_EQ(Json("\n\r\t"), R"("\n\r\t")");
}

TEST(JsonText, BytesBehindTheMarkArePairsOfDigits) {
  EXPECT_EQ(FromJsonText("\uFFFD4180"), "A\x80");
  for (const char* const broken : {"\uFFFD", "\uFFFD4", "\uFFFD4g", "\uFFFDg4", "\uFFFD41 2"}) {
    EXPECT_EQ(FromJsonText(broken), std::nullopt) << broken;
  }
}

}  // namespace
}  // namespace plexel

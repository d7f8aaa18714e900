#include "keyboard/layout_tables.h"

#include <gtest/gtest.h>

#include "keyboard/named_layout.h"

namespace plexel {
namespace {

LayoutTable Sample() { return {{{16, {U'q'}}, {41, {U'^', true}}, {12, {U'\u00DF'}}}, {U','}, true}; }

TEST(LayoutTables, ALayoutComesBackOutOfItsText) {
  const std::string text = FormatLayout("us", {}) + FormatLayout("de", Sample()) + FormatLayout("de(neo)", {});
  EXPECT_EQ(FindLayout(text, "de"), Sample());
  EXPECT_EQ(FindLayout(text, "us"), LayoutTable{});
}

TEST(LayoutTables, TheTextIsPlain) {
  EXPECT_EQ(FormatLayout("de", Sample()), "[de]\nAltGr=1\nDecimal=2c\n12=df\n16=71\n41=5e dead\n");
}

TEST(LayoutTables, ANameIsFoundWhole) {
  const std::string text = FormatLayout("de(neo)", Sample());
  EXPECT_FALSE(FindLayout(text, "de"));
  EXPECT_FALSE(FindLayout(text, "neo"));
  EXPECT_FALSE(FindLayout(text, ""));
  EXPECT_FALSE(FindLayout("", "de"));
}

TEST(LayoutTables, WhatCannotBeReadIsNoLayout) {
  for (const char* const line :
       {"x", "16", "16=", "16=g", "16=71 deaf", "16=110000", "=71", "AltGr=2", "Decimal=", "1x=71", "16=71\n16=72"}) {
    EXPECT_FALSE(FindLayout(std::string("[de]\n") + line + "\n", "de")) << line;
  }
}

TEST(LayoutTables, LayoutsOfTheSystemComeBack) {
  for (const char* const name : {"us", "de", "fr", "ru"}) {
    const auto layout = NamedLayout(name);
    const std::optional<LayoutTable> found = FindLayout(FormatLayout(name, layout->Table()), name);
    ASSERT_TRUE(found) << name;
    EXPECT_EQ(*found, layout->Table()) << name;
  }
}

}  // namespace
}  // namespace plexel

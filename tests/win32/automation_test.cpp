#include <gtest/gtest.h>

#include "win32/bag_value.h"
#include "win32/bag_values.h"
#include "win32/bstr.h"
#include "win32/variant.h"

namespace plexel {

TEST(BagValue, EveryTypeComesBackWithAllItsBits) {
  for (const BagValue& value : bagValues) {
    Variant carried;
    PutBagValue(value, carried.Get());
    EXPECT_EQ(BagValueOf(carried.Get()), value) << value.index();
  }
}

TEST(BagValue, ATypeThatPropertiesDoNotHaveIsNone) {
  Variant value;
  for (const VARTYPE type : {VT_EMPTY, VT_NULL, VT_DATE, VT_R4, VT_I8}) {
    V_VT(&value.Get()) = type;
    EXPECT_EQ(BagValueOf(value.Get()), std::nullopt) << type;
  }
  LONG number = 12;
  V_VT(&value.Get()) = VT_BYREF | VT_I4;
  V_I4REF(&value.Get()) = &number;
  EXPECT_EQ(BagValueOf(value.Get()), std::nullopt);
}

TEST(Bstr, HoldsAnyCharactersAndComesBack) {
  const std::wstring wide(L"a\0\u2039\U0001D11E", 5);
  const std::string narrow("a\0\u2039\U0001D11E", 9);
  EXPECT_EQ(ContentOf(Bstr(wide).Get()), wide);
  EXPECT_EQ(ContentOf(Bstr(narrow).Get()), wide);
  EXPECT_EQ(NarrowOf(Bstr(wide).Get()), narrow);
}

TEST(Bstr, OfNoTextIsEmptyAndOfAnEmptyOneIsThere) {
  const Bstr none, empty{std::wstring_view()};
  EXPECT_EQ(none.Get(), nullptr);
  EXPECT_EQ(ContentOf(none.Get()), L"");
  EXPECT_EQ(NarrowOf(none.Get()), "");
  ASSERT_NE(empty.Get(), nullptr);
  EXPECT_EQ(ContentOf(empty.Get()), L"");
}

}  // namespace plexel

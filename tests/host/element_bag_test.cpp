#include "host/element_bag.h"

#include <gtest/gtest.h>
#include <wrl/client.h>

#include "win32/bag_value.h"
#include "win32/bag_values.h"
#include "win32/variant.h"

namespace plexel::host {

namespace {

Microsoft::WRL::ComPtr<ElementBag> BagWith(const std::string& key, const BagValue& value) {
  FlatBag values;
  values.Store(key, value);
  return new ElementBag(values);
}

}  // namespace

TEST(ElementBag, WhatIsWrittenIsKeptInItsTypeAndOrder) {
  const Microsoft::WRL::ComPtr<ElementBag> bag(new ElementBag);
  FlatBag expected;
  const wchar_t* const names[] = {L"SizeX", L"FocusColor", L"FocusWidth",  L"WizardOn",
                                  L"ShowX", L"Other",      L"ButtonNotes", L"TargetSystem"};
  const char* const keys[] = {"SizeX", "FocusColor", "FocusWidth",  "WizardOn",
                              "ShowX", "Other",      "ButtonNotes", "TargetSystem"};
  for (std::size_t index = 0; index < std::size(bagValues); ++index) {
    Variant value;
    PutBagValue(bagValues[index], value.Get());
    EXPECT_EQ(bag->Write(names[index], &value.Get()), S_OK);
    expected.Store(keys[index], bagValues[index]);
  }
  EXPECT_TRUE(bag->Values() == expected);
}

TEST(ElementBag, AReferenceIsKeptAsItsValue) {
  const Microsoft::WRL::ComPtr<ElementBag> bag(new ElementBag);
  LONG number = 12;
  Variant value;
  V_VT(&value.Get()) = VT_BYREF | VT_I4;
  V_I4REF(&value.Get()) = &number;
  EXPECT_EQ(bag->Write(L"FocusColor", &value.Get()), S_OK);
  EXPECT_EQ(*bag->Values().Find("FocusColor"), BagValue(std::int32_t{12}));
}

TEST(ElementBag, AnotherTypeIsRefusedAndNothingKept) {
  const Microsoft::WRL::ComPtr<ElementBag> bag(new ElementBag);
  Variant value;
  V_VT(&value.Get()) = VT_R4;
  EXPECT_EQ(bag->Write(L"SizeX", &value.Get()), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(bag->Values().Size(), 0U);
}

TEST(ElementBag, AnAbsentKeyIsAnInvalidArgument) {
  const Microsoft::WRL::ComPtr<ElementBag> bag(new ElementBag);
  Variant value;
  EXPECT_EQ(bag->Read(L"SizeX", &value.Get(), nullptr), E_INVALIDARG);
  EXPECT_EQ(bag->LastAsked(), "SizeX");
}

TEST(ElementBag, AValueComesInTheTypeThatIsAskedFor) {
  const auto bag = BagWith("SizeX", BagValue(std::string("72")));
  Variant own, number;
  EXPECT_EQ(bag->Read(L"SizeX", &own.Get(), nullptr), S_OK);
  EXPECT_EQ(V_VT(&own.Get()), VT_BSTR);
  V_VT(&number.Get()) = VT_I2;
  EXPECT_EQ(bag->Read(L"SizeX", &number.Get(), nullptr), S_OK);
  EXPECT_EQ(V_VT(&number.Get()), VT_I2);
  EXPECT_EQ(V_I2(&number.Get()), 72);
}

TEST(ElementBag, NullIsNoNameAndNoPlace) {
  const auto bag = BagWith("SizeX", BagValue(std::int16_t{1}));
  Variant value;
  EXPECT_EQ(bag->Read(nullptr, &value.Get(), nullptr), E_POINTER);
  EXPECT_EQ(bag->Read(L"SizeX", nullptr, nullptr), E_POINTER);
  EXPECT_EQ(bag->Write(L"SizeX", nullptr), E_POINTER);
}

}  // namespace plexel::host

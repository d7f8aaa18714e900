#include <gtest/gtest.h>

#include <cstring>

#include "activex/late.h"
#include "activex/library.h"
#include "activex/text.h"

namespace plexel::activex {

namespace {

using Info = ::udtTactisBaseElement_ScanCodeInfo;

/// A record that a host makes, with its texts.
struct Made {
  Info record{};
  Made() {
    record.enumWizardButtonType = ::TipKey;
    record.lngLedHardwareNumber = 3;
    record.lngKeyHardwareNumber7 = 77;
    record.lngLEDTypeLayer4 = ::RunLed;
    for (unsigned char& byte : record.strLayer4ReleaseScanCode.Value) byte = 0xAB;
    record.strLayer4ReleaseScanCode.NextValue = 88;
    record.strLayer1PressString = SysAllocString(L"[a\u2039\u203A]");
    record.strBaseElementNotes = SysAllocString(L"notes");
  }
  ~Made() { Free(record); }
  static void Free(Info& record) {
    for (BSTR* text = &record.strLayer1PressString; text <= &record.strBaseElementNotes; ++text) SysFreeString(*text);
  }
};

struct Record : testing::Test {
  ComPointer<_ctlPlexelBaseElement> control = Library::Instance().Create();
};

ComPointer<IRecordInfo> InfoOf(VARIANT& value) { return ComPointer<IRecordInfo>(V_RECORDINFO(&value)); }

}  // namespace

TEST_F(Record, CrossesEarlyBoundThereAndBack) {
  Made made;
  EXPECT_EQ(control->put_TactisBaseElementScanCodeBuffer(&made.record), S_OK);
  Info back{};
  EXPECT_EQ(control->get_TactisBaseElementScanCodeBuffer(&back), S_OK);
  EXPECT_EQ(back.enumWizardButtonType, ::TipKey);
  EXPECT_EQ(back.lngLedHardwareNumber, 3);
  EXPECT_EQ(back.lngKeyHardwareNumber7, 77);
  EXPECT_EQ(back.lngLEDTypeLayer4, ::RunLed);
  EXPECT_EQ(std::memcmp(&back.strLayer4ReleaseScanCode, &made.record.strLayer4ReleaseScanCode,
                        sizeof back.strLayer4ReleaseScanCode),
            0);
  EXPECT_STREQ(back.strLayer1PressString, L"[a\u2039\u203A]");
  EXPECT_EQ(SysStringLen(back.strBaseElementNotes), 0U);  // the set leaves the notes alone
  Made::Free(back);
  EXPECT_EQ(control->SetTactisBaseElementDefinition(&made.record), S_OK);
  BSTR notes = nullptr;
  EXPECT_EQ(control->get_ButtonNotes(&notes), S_OK);
  EXPECT_EQ(Taken(notes), L"notes");
}

TEST_F(Record, CrossesLateBoundAndIsCopiedWhole) {
  Made made;
  control->put_TactisBaseElementScanCodeBuffer(&made.record);
  Late late(control.Get());
  VARIANT value;
  ASSERT_EQ(late.Get(L"TactisBaseElementScanCodeBuffer", value), S_OK);
  ASSERT_EQ(V_VT(&value), VT_RECORD);
  VARIANT copy;
  VariantInit(&copy);
  ASSERT_EQ(VariantCopy(&copy, &value), S_OK);
  VariantClear(&value);
  const auto& record = *static_cast<Info*>(V_RECORD(&copy));
  EXPECT_STREQ(record.strLayer1PressString, L"[a\u2039\u203A]");
  EXPECT_EQ(record.lngLEDTypeLayer4, ::RunLed);
  EXPECT_EQ(record.strLayer4ReleaseScanCode.Value[88], 0xAB);
  const auto other = Library::Instance().Create();
  Late to(other.Get());
  EXPECT_EQ(to.Put(L"TactisBaseElementScanCodeBuffer", copy), S_OK);
  EXPECT_EQ(to.Get(L"PressKeyDefLayer1"), L"8:[a\u2039\u203A]");
  VARIANT reference;
  VariantInit(&reference);
  V_VT(&reference) = VT_BYREF | VT_VARIANT;
  V_VARIANTREF(&reference) = &copy;
  EXPECT_EQ(to.Call(L"SetTactisBaseElementDefinition", {reference}), S_OK);
  VARIANT inPlace = copy;
  V_VT(&inPlace) = VT_BYREF | VT_RECORD;
  EXPECT_EQ(to.Call(L"SetTactisBaseElementDefinition", {inPlace}), S_OK);
  EXPECT_EQ(to.Call(L"SetTactisBaseElementDefinition", {Number(1)}), DISP_E_TYPEMISMATCH);
  VariantClear(&copy);
}

TEST_F(Record, IsRefusedWhenItIsAnotherOne) {
  Late late(control.Get());
  VARIANT value;
  ASSERT_EQ(late.Get(L"TactisBaseElementScanCodeBuffer", value), S_OK);
  VARIANT codes;
  ASSERT_EQ(InfoOf(value)->GetField(V_RECORD(&value), L"strLayer1PressScanCode", &codes), S_OK);
  ASSERT_EQ(V_VT(&codes), VT_RECORD);
  EXPECT_EQ(late.Put(L"TactisBaseElementScanCodeBuffer", codes), DISP_E_TYPEMISMATCH);
  VariantClear(&codes);
  VariantClear(&value);
}

TEST_F(Record, TellsItsFieldsToWhoeverCannotSeeThem) {
  Late late(control.Get());
  VARIANT value;
  ASSERT_EQ(late.Get(L"TactisBaseElementScanCodeBuffer", value), S_OK);
  const auto info = InfoOf(value);
  void* const data = V_RECORD(&value);
  BSTR name = nullptr;
  EXPECT_EQ(info->GetName(&name), S_OK);
  EXPECT_EQ(Taken(name), L"udtTactisBaseElement_ScanCodeInfo");
  ULONG size = 0, count = 0;
  EXPECT_EQ(info->GetSize(&size), S_OK);
  EXPECT_EQ(size, sizeof(Info));
  EXPECT_EQ(info->GetFieldNames(&count, nullptr), S_OK);
  EXPECT_EQ(count, 33U);
  BSTR names[33] = {};
  EXPECT_EQ(info->GetFieldNames(&count, names), S_OK);
  EXPECT_STREQ(names[32], L"strBaseElementNotes");
  for (const BSTR one : names) SysFreeString(one);

  VARIANT field = Number(5);
  EXPECT_EQ(info->PutField(INVOKE_PROPERTYPUT, data, L"lngLEDTypeLayer2", &field), S_OK);
  EXPECT_EQ(static_cast<Info*>(data)->lngLEDTypeLayer2, ::NumLockLed);
  V_VT(&field) = VT_BSTR;
  V_BSTR(&field) = SysAllocString(L"text");
  EXPECT_EQ(info->PutField(INVOKE_PROPERTYPUT, data, L"strLayer2PressString", &field), S_OK);
  EXPECT_EQ(info->PutField(INVOKE_PROPERTYPUT, data, L"lngLEDTypeLayer2", &field), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(info->PutField(INVOKE_PROPERTYPUT, data, L"atlantis", &field), TYPE_E_FIELDNOTFOUND);
  VariantClear(&field);
  EXPECT_EQ(info->GetField(data, L"STRLAYER2PRESSSTRING", &field), S_OK);
  EXPECT_EQ(Taken(V_BSTR(&field)), L"text");

  VARIANT codes, bytes;
  VariantInit(&codes);
  EXPECT_EQ(info->GetFieldNoCopy(data, L"strLayer1PressScanCode", &codes, nullptr), S_OK);
  EXPECT_EQ(V_RECORD(&codes), &static_cast<Info*>(data)->strLayer1PressScanCode);
  const auto inner = InfoOf(codes);
  EXPECT_EQ(inner->GetField(V_RECORD(&codes), L"Value", &bytes), S_OK);
  ASSERT_EQ(V_VT(&bytes), VT_ARRAY | VT_UI1);
  EXPECT_EQ(V_ARRAY(&bytes)->rgsabound[0].cElements, 89U);
  EXPECT_EQ(static_cast<BYTE*>(V_ARRAY(&bytes)->pvData)[44], 0xFF);
  EXPECT_EQ(static_cast<BYTE*>(V_ARRAY(&bytes)->pvData)[45], 0);
  static_cast<BYTE*>(V_ARRAY(&bytes)->pvData)[0] = 0x1C;
  EXPECT_EQ(inner->PutField(INVOKE_PROPERTYPUT, V_RECORD(&codes), L"Value", &bytes), S_OK);
  EXPECT_EQ(static_cast<Info*>(data)->strLayer1PressScanCode.Value[0], 0x1C);
  VariantClear(&bytes);
  inner->Release();  // what GetFieldNoCopy gave
  VariantClear(&value);
}

}  // namespace plexel::activex

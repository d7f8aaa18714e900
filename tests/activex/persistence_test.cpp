#include <gtest/gtest.h>

#include <array>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "activex/late.h"
#include "activex/library.h"
#include "activex/object.h"
#include "activex/sinks.h"
#include "win32/bstr.h"
#include "win32/variant.h"

namespace plexel::activex {

namespace {

/// A container's bag of values: their types and texts, in the order in which they were written.
class Bag : public TestObject<IPropertyBag> {
 public:
  ~Bag() override {
    for (auto& [key, value] : values) VariantClear(&value);
  }
  HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override {
    asked.emplace_back(name);
    for (auto& [key, stored] : values) {
      if (key == name) return VariantCopy(value, &stored);
    }
    return E_INVALIDARG;
  }
  HRESULT STDMETHODCALLTYPE Write(LPCOLESTR name, VARIANT* value) override {
    if (values.size() == refuseAfter) return E_OUTOFMEMORY;
    values.emplace_back(name, VARIANT{});
    return VariantCopy(&values.back().second, value);
  }
  std::vector<std::wstring> Lines() const {
    std::vector<std::wstring> lines;
    for (const auto& [key, value] : values) {
      Variant text;
      VariantChangeType(&text.Get(), const_cast<VARIANT*>(&value), 0, VT_BSTR);
      lines.push_back(key + L"=" + std::to_wstring(V_VT(&value)) + L":");
      lines.back() += ContentOf(V_BSTR(&text.Get()));
    }
    return lines;
  }

  std::vector<std::pair<std::wstring, VARIANT>> values;
  std::vector<std::wstring> asked;
  std::size_t refuseAfter = 1000;
};

/// A property with a value that is none of its defaults, as a bag holds it: VT_I4 is 3, VT_BSTR 8, VT_BOOL 11,
/// VT_UI1 17.
struct Stored {
  const wchar_t* property;
  const wchar_t* value;
  const wchar_t* line;
};
// In the order of writing.
constexpr std::array stored = {
    Stored{L"HardwareNumberKey", L"10", L"HardwareNumberKey=3:10"},
    Stored{L"HardwareNumberKey1", L"11", L"HardwareNumberKey1=3:11"},
    Stored{L"HardwareNumberKey2", L"12", L"HardwareNumberKey2=3:12"},
    Stored{L"HardwareNumberKey3", L"13", L"HardwareNumberKey3=3:13"},
    Stored{L"HardwareNumberKey4", L"14", L"HardwareNumberKey4=3:14"},
    Stored{L"HardwareNumberKey5", L"15", L"HardwareNumberKey5=3:15"},
    Stored{L"HardwareNumberKey6", L"16", L"HardwareNumberKey6=3:16"},
    Stored{L"HardwareNumberKey7", L"17", L"HardwareNumberKey7=3:17"},
    Stored{L"SizeX", L"44", L"SizeX=2:44"},
    Stored{L"ElementType", L"5", L"ElementType=3:5"},
    Stored{L"ZoomFactor", L"150", L"ZoomFactor=2:150"},
    Stored{L"FocusColor", L"65280", L"FocusColor=3:65280"},
    Stored{L"FocusWidth", L"3", L"FocusWidth=17:3"},
    Stored{L"WizardOn", L"-1", L"WizardOn=11:-1"},
    Stored{L"LEDTypeLayer1", L"0", L"LedType1=3:0"},
    Stored{L"LEDTypeLayer2", L"1", L"LedType2=3:1"},
    Stored{L"LEDTypeLayer3", L"2", L"LedType3=3:2"},
    Stored{L"LEDTypeLayer4", L"14", L"LedType4=3:14"},
    Stored{L"FocusVisible", L"-1", L"FocusVisible=11:-1"},
    Stored{L"ReleaseKeyDefLayer1", L"r1", L"ReleaseKeyDefLayer1=8:r1"},
    Stored{L"ReleaseKeyDefLayer2", L"r2", L"ReleaseKeyDefLayer2=8:r2"},
    Stored{L"ReleaseKeyDefLayer3", L"r3", L"ReleaseKeyDefLayer3=8:r3"},
    Stored{L"ReleaseKeyDefLayer4", L"r4", L"ReleaseKeyDefLayer4=8:r4"},
    Stored{L"PressKeyDefLayer1", L"[a\u2039\u203A]", L"PressKeyDefLayer1=8:[a\u2039\u203A]"},
    Stored{L"PressKeyDefLayer2", L"p2", L"PressKeyDefLayer2=8:p2"},
    Stored{L"PressKeyDefLayer3", L"p3", L"PressKeyDefLayer3=8:p3"},
    Stored{L"PressKeyDefLayer4", L"p4", L"PressKeyDefLayer4=8:p4"},
    Stored{L"OriginalPosX", L"-70000", L"OriginalPosX=3:-70000"},
    Stored{L"HardwareNumberButton", L"6", L"HardwareNumberButton=3:6"},
    Stored{L"HardwareNumberLed", L"7", L"HardwareNumberLed=3:7"},
    Stored{L"ShowX", L"-1", L"ShowX=11:-1"},
    Stored{L"ShowXPermanent", L"-1", L"ShowXPermanent=11:-1"},
    Stored{L"ButtonNotes", L"\u64CD notes", L"ButtonNotes=8:\u64CD notes"},
    Stored{L"KeyDefinedColor", L"255", L"KeyDefinedColor=3:255"},
    Stored{L"ShowDefined", L"-1", L"ShowDefined=11:-1"},
    Stored{L"XElementSize", L"2", L"XElementSize=3:2"},
    Stored{L"WizardOptions", L"4", L"WizardOptions=3:4"},
    Stored{L"TargetSystem", L"Standard", L"TargetSystem=8:Standard"},
};
static_assert(stored.size() == 38);

struct Persistence : testing::Test {
  ComPointer<_ctlPlexelBaseElement> control = Library::Instance().Create();

  static void Fill(IDispatch* element) {
    Late late(element);
    for (const Stored& row : stored) ASSERT_EQ(late.Put(row.property, row.value), S_OK) << row.property;
  }
  static std::vector<std::wstring> All() {
    std::vector<std::wstring> lines;
    for (const Stored& row : stored) lines.emplace_back(row.line);
    return lines;
  }
  static std::vector<std::wstring> Lines(IUnknown* element) {
    Bag bag;
    EXPECT_EQ(As<IPersistPropertyBag>(element)->Save(&bag, FALSE, TRUE), S_OK);
    return bag.Lines();
  }
  static ComPointer<IStream> Stream() {
    ComPointer<IStream> stream;
    CreateStreamOnHGlobal(nullptr, TRUE, stream.Out());
    return stream;
  }
  static std::vector<BYTE> Bytes(IUnknown* element) {
    const auto stream = Stream();
    EXPECT_EQ(As<IPersistStreamInit>(element)->Save(stream.Get(), FALSE), S_OK);
    STATSTG state{};
    stream->Stat(&state, STATFLAG_NONAME);
    std::vector<BYTE> bytes(state.cbSize.LowPart);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
    return bytes;
  }
  static HRESULT Load(IUnknown* element, const std::vector<BYTE>& bytes) {
    const auto stream = Stream();
    stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    return As<IPersistStreamInit>(element)->Load(stream.Get());
  }
};

}  // namespace

TEST_F(Persistence, ABagHoldsAll38KeysWithTheirTypesInTheirOrder) {
  Fill(control.Get());
  EXPECT_EQ(Lines(control.Get()), All());
}

TEST_F(Persistence, ABagBringsBackWhatItHolds) {
  Fill(control.Get());
  Bag bag;
  ASSERT_EQ(As<IPersistPropertyBag>(control)->Save(&bag, TRUE, TRUE), S_OK);
  EXPECT_EQ(As<IPersistStreamInit>(control)->IsDirty(), S_FALSE);
  const auto other = Library::Instance().Create();
  ASSERT_EQ(As<IPersistPropertyBag>(other)->Load(&bag, nullptr), S_OK);
  EXPECT_EQ(bag.asked.size(), 39U);
  EXPECT_EQ(bag.asked.front(), L"HardwareNumberKey");
  EXPECT_EQ(bag.asked.back(), L"HardwareNumberButton");
  EXPECT_EQ(Lines(other.Get()), All());
  EXPECT_EQ(bag.holds, 0U);
  EXPECT_EQ(As<IPersistStreamInit>(other)->IsDirty(), S_FALSE);
}

TEST_F(Persistence, AnEmptyBagGivesTheDefaultsOfReading) {
  Bag bag;
  ASSERT_EQ(As<IPersistPropertyBag>(control)->Load(&bag, nullptr), S_OK);
  EXPECT_EQ(Lines(control.Get()), (std::vector<std::wstring>{L"SizeX=2:20", L"ElementType=3:0", L"ZoomFactor=2:100",
                                                             L"WizardOn=11:0", L"FocusVisible=11:-1"}));
}

TEST_F(Persistence, AValueThatDoesNotConvertEndsTheReadingAndTheLoadSucceeds) {
  Fill(control.Get());
  Bag bag;
  ASSERT_EQ(As<IPersistPropertyBag>(control)->Save(&bag, TRUE, TRUE), S_OK);
  for (auto& [key, value] : bag.values) {
    if (key != L"FocusColor") continue;
    V_VT(&value) = VT_BSTR;
    V_BSTR(&value) = SysAllocString(L"red");
  }
  const auto other = Library::Instance().Create();
  EXPECT_EQ(As<IPersistPropertyBag>(other)->Load(&bag, nullptr), S_OK);
  Late late(other.Get());
  EXPECT_EQ(late.Get(L"ZoomFactor"), L"2:150");
  EXPECT_EQ(late.Get(L"FocusColor"), L"3:0");
  EXPECT_EQ(late.Get(L"LEDTypeLayer1"), L"3:0");  // neither read nor new
  EXPECT_EQ(late.Get(L"ButtonNotes"), L"8:");
}

TEST_F(Persistence, ABagThatRefusesAValueIsTold) {
  Fill(control.Get());
  Bag bag;
  bag.refuseAfter = 5;
  EXPECT_EQ(As<IPersistPropertyBag>(control)->Save(&bag, TRUE, TRUE), E_OUTOFMEMORY);
  EXPECT_EQ(bag.values.size(), 5U);
  EXPECT_EQ(As<IPersistStreamInit>(control)->IsDirty(), S_OK);
}

TEST_F(Persistence, AStreamBringsBackEveryValueThoseAtTheirDefaultToo) {
  Fill(control.Get());
  Late late(control.Get());
  const std::vector<BYTE> bytes = Bytes(control.Get());
  ULARGE_INTEGER size{};
  EXPECT_EQ(As<IPersistStreamInit>(control)->GetSizeMax(&size), S_OK);
  EXPECT_EQ(size.QuadPart, bytes.size());
  const auto other = Library::Instance().Create();
  ASSERT_EQ(Load(other.Get(), bytes), S_OK);
  EXPECT_EQ(Lines(other.Get()), All());
  EXPECT_EQ(Bytes(other.Get()), bytes);
  late.Put(L"SizeX", 1);
  late.Put(L"ElementType", 1);
  late.Put(L"ShowX", Boolean16(5));
  late.Put(L"XElementSize", 0x7FFFFFFF);  // which its setter does not get through
  const std::vector<BYTE> odd = Bytes(control.Get());
  ASSERT_EQ(Load(other.Get(), odd), S_OK);
  EXPECT_EQ(Bytes(other.Get()), odd);
  EXPECT_EQ(Late(other.Get()).Get(L"ElementType"), L"3:1");
  EXPECT_EQ(Late(other.Get()).Get(L"TargetSystem"), L"8:Standard");
}

TEST_F(Persistence, AStreamIsReadFromWhereItStandsAndNoFurther) {
  Fill(control.Get());
  const auto stream = Stream();
  ASSERT_EQ(stream->Write("ahead", 5, nullptr), S_OK);
  ASSERT_EQ(As<IPersistStreamInit>(control)->Save(stream.Get(), FALSE), S_OK);
  ASSERT_EQ(stream->Write("behind", 6, nullptr), S_OK);
  LARGE_INTEGER place{};
  place.QuadPart = 5;
  stream->Seek(place, STREAM_SEEK_SET, nullptr);
  const auto other = Library::Instance().Create();
  ASSERT_EQ(As<IPersistStreamInit>(other)->Load(stream.Get()), S_OK);
  char rest[7] = {};
  stream->Read(rest, 6, nullptr);
  EXPECT_STREQ(rest, "behind");
}

TEST_F(Persistence, ADamagedStreamIsRefusedAndTheElementIsNew) {
  Fill(control.Get());
  const std::vector<BYTE> bytes = Bytes(control.Get());
  const std::vector<std::wstring> fresh = Lines(Library::Instance().Create().Get());
  const auto other = Library::Instance().Create();
  const auto expectRefused = [&](const std::vector<BYTE>& damaged, std::size_t place) {
    Late(other.Get()).Put(L"SizeX", 5);
    EXPECT_EQ(Load(other.Get(), damaged), STG_E_DOCFILECORRUPT) << place;
    EXPECT_EQ(Lines(other.Get()), fresh) << place;
  };
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    expectRefused({bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length)}, length);
  }
  for (std::size_t place = 0; place < bytes.size(); ++place) {
    std::vector<BYTE> damaged = bytes;
    damaged[place] = static_cast<BYTE>(damaged[place] ^ (1U << (place % 8)));
    expectRefused(damaged, place);
  }
}

TEST_F(Persistence, RandomDamageIsRefused) {
  Fill(control.Get());
  const std::vector<BYTE> bytes = Bytes(control.Get());
  const auto other = Library::Instance().Create();
  const unsigned seed = std::random_device()();
  RecordProperty("seed", std::to_string(seed));
  std::mt19937 random(seed);
  for (int round = 0; round < 5000; ++round) {
    std::vector<BYTE> damaged = bytes;
    for (unsigned changes = random() % 8 + 1; changes > 0; --changes) {
      const std::size_t place = random() % damaged.size();
      switch (random() % 3) {
        case 0:
          damaged[place] = static_cast<BYTE>(random());
          break;
        case 1:
          damaged.erase(damaged.begin() + static_cast<std::ptrdiff_t>(place));
          break;
        default:
          damaged.insert(damaged.begin() + static_cast<std::ptrdiff_t>(place), static_cast<BYTE>(random()));
          break;
      }
    }
    const HRESULT result = Load(other.Get(), damaged);
    const bool same =
        damaged == bytes || (damaged.size() > bytes.size() && std::equal(bytes.begin(), bytes.end(), damaged.begin()));
    EXPECT_EQ(result, same ? S_OK : STG_E_DOCFILECORRUPT) << "seed " << seed << ", round " << round;
  }
}

TEST_F(Persistence, AStorageHoldsTheSame) {
  Fill(control.Get());
  ComPointer<ILockBytes> memory;
  ComPointer<IStorage> storage;
  ASSERT_EQ(CreateILockBytesOnHGlobal(nullptr, TRUE, memory.Out()), S_OK);
  ASSERT_EQ(
      StgCreateDocfileOnILockBytes(memory.Get(), STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, storage.Out()),
      S_OK);
  const auto persist = As<IPersistStorage>(control);
  ASSERT_EQ(persist->Save(storage.Get(), FALSE), S_OK);
  EXPECT_EQ(persist->SaveCompleted(nullptr), S_OK);
  EXPECT_EQ(persist->IsDirty(), S_FALSE);
  CLSID kind{};
  EXPECT_EQ(ReadClassStg(storage.Get(), &kind), S_OK);
  EXPECT_EQ(kind, __uuidof(::ctlPlexelBaseElement));
  const auto other = Library::Instance().Create();
  ASSERT_EQ(As<IPersistStorage>(other)->Load(storage.Get()), S_OK);
  EXPECT_EQ(Lines(other.Get()), All());
  ASSERT_EQ(storage->DestroyElement(L"Element"), S_OK);
  EXPECT_EQ(As<IPersistStorage>(other)->Load(storage.Get()), STG_E_FILENOTFOUND);
  EXPECT_EQ(Late(other.Get()).Get(L"SizeX"), L"2:0");
}

TEST_F(Persistence, AStreamThatLiesIsRefused) {
  struct Lying : TestObject<ISequentialStream> {
    HRESULT STDMETHODCALLTYPE Read(void* bytes, ULONG count, ULONG* came) override {
      std::fill_n(static_cast<BYTE*>(bytes), count, BYTE{0xFF});
      if (came != nullptr) *came = claims == 1 ? count + 100 : claims == 2 ? 0 : count;
      return claims == 3 ? E_FAIL : S_OK;
    }
    HRESULT STDMETHODCALLTYPE Write(const void*, ULONG count, ULONG* went) override {
      if (went != nullptr) *went = claims == 1 ? count + 100 : claims == 2 ? 0 : count;
      return claims == 3 ? E_FAIL : S_OK;
    }
    int claims = 0;
  } lying;
  // Reading and writing are the first of a stream's functions, and the control needs no others.
  auto* const stream = reinterpret_cast<IStream*>(static_cast<ISequentialStream*>(&lying));
  for (lying.claims = 0; lying.claims < 4; ++lying.claims) {
    EXPECT_EQ(As<IPersistStreamInit>(control)->Load(stream), STG_E_DOCFILECORRUPT) << lying.claims;
    const HRESULT written = As<IPersistStreamInit>(control)->Save(stream, FALSE);
    EXPECT_EQ(SUCCEEDED(written), lying.claims == 0) << lying.claims;
  }
}

}  // namespace plexel::activex

#include "host/check.h"

#include <ocidl.h>

#include <algorithm>
#include <functional>
#include <memory>

#include "element/property_table.h"
#include "host/check_desk.h"
#include "host/com_error.h"
#include "host/facts.h"
#include "host/member_table.h"
#include "host/placed_control.h"
#include "win32/scale.h"
#include "win32/wide_text.h"

namespace plexel::host {

namespace {

using Microsoft::WRL::ComPtr;

constexpr const wchar_t* LibraryName = L"PlexelBaseElement.ocx";
constexpr std::size_t KeysOfABag = 38;
constexpr int Many = 200;

/// A value that a member does not have by itself; another for each member and each round.
MemberValue ValueFor(const PropertyRow& row, std::size_t member, int round) {
  constexpr LONG First = 30, OfARound = 60;
  const LONG number = First + OfARound * round + static_cast<LONG>(member);
  switch (row.type) {
    case PropertyType::Bool:
      return LONG{round == 0 ? -1 : 0};
    case PropertyType::Double:
      return 1.25 + round;
    case PropertyType::String:
      return L"text " + std::to_wstring(number) + L" \u00E4\u2039\u203A";
    default:
      return number;
  }
}

BagValue InBag(const PropertyRow& row, const MemberValue& value) {
  switch (row.type) {
    case PropertyType::Int16:
      return static_cast<std::int16_t>(std::get<LONG>(value));
    case PropertyType::UInt8:
      return static_cast<std::uint8_t>(std::get<LONG>(value));
    case PropertyType::Bool:
      return Boolean::Raw(static_cast<std::int16_t>(std::get<LONG>(value)));
    case PropertyType::String:
      return Narrow(std::get<std::wstring>(value));
    default:
      return static_cast<std::int32_t>(std::get<LONG>(value));
  }
}

/// Calls `visit(member, row, value)` for each member with a value of a round; what it answers is a list of names.
std::string ForEach(int round,
                    const std::function<bool(const EarlyMember&, const PropertyRow&, const MemberValue&)>& visit) {
  std::string wrong;
  const auto members = EarlyMembers();
  for (std::size_t index = 0; index < members.size(); ++index) {
    const PropertyRow* const row = FindProperty(members[index].name);
    if (row != nullptr && visit(members[index], *row, ValueFor(*row, index, round))) continue;
    wrong += (wrong.empty() ? "" : ", ") + std::string(members[index].name);
  }
  return wrong;
}

std::string PutEarly(PlacedControl& control, int round) {
  return ForEach(round, [&](const EarlyMember& member, const PropertyRow&, const MemberValue& value) {
    return SUCCEEDED(member.put(control.Element(), value));
  });
}

std::string ReadEarly(PlacedControl& control, int round) {
  return ForEach(round, [&](const EarlyMember& member, const PropertyRow&, const MemberValue& value) {
    MemberValue got;
    return SUCCEEDED(member.get(control.Element(), got)) && got == value;
  });
}

std::string PutByName(PlacedControl& control, int round) {
  return ForEach(round, [&](const EarlyMember& member, const PropertyRow&, const MemberValue& value) {
    return SUCCEEDED(PutLate(control.Element(), member.name, value));
  });
}

std::string ReadByName(PlacedControl& control, int round) {
  return ForEach(round, [&](const EarlyMember& member, const PropertyRow&, const MemberValue& value) {
    MemberValue got;
    return SUCCEEDED(GetLate(control.Element(), member.name, got)) && got == value;
  });
}

std::string SeenUnless(bool holds, const std::string& seen) { return holds ? std::string() : seen; }

/// Codes in all eight buffers.
std::vector<SavedCodes> SomeCodes() {
  std::vector<SavedCodes> all;
  for (std::int32_t buffer = 0; buffer < 8; ++buffer) {
    SavedCodes saved{buffer, InitialCodes()};
    saved.codes.Value[1] = static_cast<std::uint8_t>(0x1C + buffer);
    saved.codes.NextValue = 2;
    all.push_back(saved);
  }
  return all;
}

ComPtr<IStream> NewStream() {
  ComPtr<IStream> stream;
  Check(CreateStreamOnHGlobal(nullptr, TRUE, stream.GetAddressOf()), "CreateStreamOnHGlobal");
  return stream;
}

void SaveByStream(const PlacedControl& control, IStream& stream) {
  const auto persist = control.As<IPersistStreamInit>();
  Check(persist ? persist->Save(&stream, TRUE) : E_NOINTERFACE, "IPersistStreamInit.Save");
  Check(stream.Seek({}, STREAM_SEEK_SET, nullptr), "Seek");
}

void LoadByStream(const PlacedControl& control, IStream& stream) {
  const auto persist = control.As<IPersistStreamInit>();
  Check(persist ? persist->Load(&stream) : E_NOINTERFACE, "IPersistStreamInit.Load");
}

using CanUnload = HRESULT(WINAPI*)();

HRESULT AskLibrary() {
  const HMODULE library = GetModuleHandleW(LibraryName);
  if (library == nullptr) throw std::runtime_error("the library is not loaded");
  const auto ask = reinterpret_cast<CanUnload>(reinterpret_cast<void*>(GetProcAddress(library, "DllCanUnloadNow")));
  if (ask == nullptr) throw std::runtime_error("the library has no DllCanUnloadNow");
  return ask();
}

void TryPlace(Facts& facts, CheckDesk& desk) {
  std::unique_ptr<PlacedControl> control;
  facts.Try("it is created by its name and takes a site", [&] {
    control = std::make_unique<PlacedControl>(desk.TheContainer(), "F1");
    return std::string();
  });
  if (control == nullptr) return;
  facts.Try("DllCanUnloadNow says no as long as there is a control",
            [] { return SeenUnless(AskLibrary() == S_FALSE, "it says yes"); });
  facts.Try("it becomes active where it is placed", [&] {
    constexpr RECT Wanted = {20, 30, 92, 70};
    control->InitNew();
    control->Place(Wanted);
    control->Activate();
    RECT place{};
    GetWindowRect(control->Window(), &place);
    MapWindowPoints(nullptr, desk.Handle(), reinterpret_cast<POINT*>(&place), 2);
    const bool seen = IsWindowVisible(control->Window()) != FALSE && GetParent(control->Window()) == desk.Handle();
    return SeenUnless(seen && EqualRect(&place, &Wanted) != FALSE, "it is elsewhere");
  });
  facts.Try("it takes the size of its element", [&] {
    Check(control->Element().put_ZoomFactor(100), "ZoomFactor");
    Check(control->Element().put_SizeX(100), "SizeX");
    Check(control->Element().put_SizeY(50), "SizeY");
    const RECT& place = control->Place();
    return SeenUnless(WidthOf(place) == 100 && HeightOf(place) == 50,
                      std::to_string(WidthOf(place)) + " by " + std::to_string(HeightOf(place)) + " pixels");
  });
  facts.Try("it is drawn and comes to rest", [] { return SeenUnless(CheckDesk::Pump(), "it is drawn over and over"); });
  facts.Try("with the keys it has the focus, and hands its definition over", [&] {
    SetForegroundWindow(desk.Handle());
    control->TakeKeys();
    (void)CheckDesk::Pump();
    const bool told =
        std::ranges::any_of(desk.heard, [](const std::string& call) { return call.starts_with("SendKeyDefinition("); });
    return SeenUnless(GetFocus() == control->Window() && desk.TheContainer().Active() && told,
                      "it has not, or does not");
  });
  facts.Try("the mouse raises its events, in twips", [&] {
    desk.heard.clear();
    constexpr LPARAM Place = MAKELPARAM(10, 5);
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
      SendMessageW(control->Window(), message, 0, Place);
    }
    const Scale scale(static_cast<int>(GetDpiForSystem()));
    const std::string clicked = "MouseClicked(1, 0, " + std::to_string(std::lround(scale.ToTwips(10))) + ", " +
                                std::to_string(std::lround(scale.ToTwips(5))) + ")";
    const std::vector<std::string> expected = {clicked, "MouseDblClicked()", clicked};
    return SeenUnless(desk.heard == expected, desk.heard.empty() ? "no event" : desk.heard.front());
  });
  facts.Try("when it is taken out nobody holds it", [&] {
    const ULONG holds = control->TakeOut();
    return SeenUnless(holds == 0, std::to_string(holds));
  });
}

void TryMembers(Facts& facts, CheckDesk& desk) {
  PlacedControl early(desk.TheContainer(), "early"), late(desk.TheContainer(), "late");
  facts.Try("every property is set early bound", [&] { return PutEarly(early, 0); });
  facts.Try("what is set early bound is read early bound", [&] { return ReadEarly(early, 0); });
  facts.Try("what is set early bound is read late bound", [&] { return ReadByName(early, 0); });
  facts.Try("every property is set late bound", [&] { return PutByName(late, 1); });
  facts.Try("what is set late bound is read late bound", [&] { return ReadByName(late, 1); });
  facts.Try("what is set late bound is read early bound", [&] { return ReadEarly(late, 1); });
}

void TryRecord(Facts& facts, CheckDesk& desk) {
  PlacedControl control(desk.TheContainer(), "codes");
  facts.Try("codes go into all buffers and come back by the record", [&] {
    control.Codes(SomeCodes());
    return SeenUnless(control.Codes() == SomeCodes(), "they differ");
  });
}

void TryStores(Facts& facts, CheckDesk& desk) {
  PlacedControl control(desk.TheContainer(), "saved"), byBag(desk.TheContainer(), "bag"),
      byStream(desk.TheContainer(), "stream");
  FlatBag bag;
  facts.Try("a bag gets all keys, each in its type", [&] {
    if (const std::string wrong = PutEarly(control, 0); !wrong.empty()) return wrong;
    bag = control.Save();
    if (bag.Size() != KeysOfABag) return std::to_string(bag.Size()) + " keys";
    return ForEach(0, [&](const EarlyMember&, const PropertyRow& row, const MemberValue& value) {
      if (row.storage.writeOrder == 0) return true;
      const BagValue* const stored = bag.Find(row.storage.key);
      return stored != nullptr && *stored == InBag(row, value);
    });
  });
  facts.Try("loaded from a bag it is saved the same", [&] {
    const std::string stopped = byBag.Load(bag);
    if (!stopped.empty()) return "it has stopped at " + stopped;
    return SeenUnless(byBag.Save() == bag, "it is not");
  });
  facts.Try("saved by a stream and loaded it is the same", [&] {
    const ComPtr<IStream> stream = NewStream();
    SaveByStream(control, *stream.Get());
    LoadByStream(byStream, *stream.Get());
    return SeenUnless(byStream.Save() == bag, "it is not");
  });
  facts.Try("what is loaded from a stream is written as the same bytes", [&] {
    const ComPtr<IStream> first = NewStream(), second = NewStream();
    SaveByStream(control, *first.Get());
    SaveByStream(byStream, *second.Get());
    std::string bytes[2];
    const auto read = [](IStream& stream, std::string& into) {
      into.resize(65536);
      ULONG count = 0;
      Check(stream.Read(into.data(), static_cast<ULONG>(into.size()), &count), "Read");
      into.resize(count);
    };
    read(*first.Get(), bytes[0]);
    read(*second.Get(), bytes[1]);
    return SeenUnless(!bytes[0].empty() && bytes[0] == bytes[1], "they differ");
  });
}

void TryMany(Facts& facts, CheckDesk& desk) {
  facts.Try("200 controls are created, placed and taken out, and none is held any more", [&] {
    std::vector<std::unique_ptr<PlacedControl>> controls;
    for (int index = 0; index < Many; ++index) {
      controls.push_back(std::make_unique<PlacedControl>(desk.TheContainer(), "F" + std::to_string(index)));
      const LONG left = 30 * (index % 20), top = 25 * (index / 20);
      controls.back()->InitNew();
      controls.back()->Place({left, top, left + 25, top + 20});
      controls.back()->Activate();
    }
    (void)CheckDesk::Pump();
    ULONG held = 0;
    for (const auto& control : controls) held += control->TakeOut();
    return SeenUnless(held == 0, std::to_string(held) + " holds are left");
  });
}

}  // namespace

bool CheckControl(std::ostream& told) {
  Facts facts(told);
  {
    CheckDesk desk;
    TryPlace(facts, desk);
    if (facts.Hold()) {
      TryMembers(facts, desk);
      TryRecord(facts, desk);
      TryStores(facts, desk);
      TryMany(facts, desk);
    }
    (void)CheckDesk::Pump();
    facts.Try("no control holds its container", [&] {
      return SeenUnless(desk.TheContainer().Holds() == 1, std::to_string(desk.TheContainer().Holds()));
    });
  }
  facts.Try("DllCanUnloadNow says yes in the end", [] { return SeenUnless(AskLibrary() == S_OK, "it says no"); });
  facts.Try("the system unloads the library", [] {
    CoFreeUnusedLibrariesEx(0, 0);
    CoFreeUnusedLibrariesEx(0, 0);
    return SeenUnless(GetModuleHandleW(LibraryName) == nullptr, "it is loaded still");
  });
  return facts.Hold();
}

}  // namespace plexel::host

#include <ole2.h>
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "activex/container.h"
#include "activex/library.h"
#include "component/component.h"
#include "headless/headless_platform.h"
#include "headless/headless_surroundings.h"

namespace plexel::activex {

namespace {

/// The least time of some rounds, in nanoseconds a call.
template <typename Act>
double Nanoseconds(int calls, Act&& act) {
  double least = 1e18;
  for (int round = 0; round < 7; ++round) {
    const auto start = std::chrono::steady_clock::now();
    for (int call = 0; call < calls; ++call) act(call);
    const std::chrono::duration<double, std::nano> passed = std::chrono::steady_clock::now() - start;
    least = std::min(least, passed.count() / calls);
  }
  return least;
}

struct Silent : ElementHost {
  plexel::Boolean CheckIfLedIsAlreadyDefined(std::int32_t&, std::int32_t&) override { return false; }
};

/// The least that an object called by name does: it knows one name and keeps one number.
class Bare : public TestObject<NoNames<IDispatch>> {
 public:
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* numbers) override {
    const bool known = CompareStringOrdinal(names[0], -1, L"OriginalPosX", -1, TRUE) == CSTR_EQUAL;
    *numbers = known ? 1 : DISPID_UNKNOWN;
    return known ? S_OK : DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    if (member != 1 || flags != DISPATCH_PROPERTYPUT || arguments->cArgs != 1) return DISP_E_MEMBERNOTFOUND;
    if (V_VT(&arguments->rgvarg[0]) != VT_I4) return DISP_E_TYPEMISMATCH;
    kept = V_I4(&arguments->rgvarg[0]);
    return S_OK;
  }
  volatile LONG kept = 0;
};

DISPID NumberOf(IDispatch& object) {
  auto* name = const_cast<wchar_t*>(L"OriginalPosX");
  DISPID number = 0;
  object.GetIDsOfNames(IID_NULL, &name, 1, 0, &number);
  return number;
}

void PutLate(IDispatch& object, DISPID number, LONG value) {
  VARIANT given;
  V_VT(&given) = VT_I4;
  V_I4(&given) = value;
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS arguments{&given, &put, 1, 1};
  object.Invoke(number, IID_NULL, 0, DISPATCH_PROPERTYPUT, &arguments, nullptr, nullptr, nullptr);
}

void Calls() {
  constexpr int Many = 1'000'000;
  HeadlessPlatform platform;
  HeadlessSurroundings surroundings(platform);
  Component component(platform, surroundings);
  Silent host;
  const auto element = component.Create("F1", host);
  const auto control = Library::Instance().Create();
  Bare bare;
  const double direct = Nanoseconds(Many, [&](int value) { element->OriginalPosX(value); });
  const double early = Nanoseconds(Many, [&](int value) { control->put_OriginalPosX(value); });
  const DISPID bareNumber = NumberOf(bare), number = NumberOf(*control.Get());
  const double bareLate = Nanoseconds(Many, [&](int value) { PutLate(bare, bareNumber, value); });
  const double late = Nanoseconds(Many, [&](int value) { PutLate(*control.Get(), number, value); });
  const double bareNamed = Nanoseconds(Many, [&](int value) { PutLate(bare, NumberOf(bare), value); });
  const double named = Nanoseconds(Many, [&](int value) { PutLate(*control.Get(), NumberOf(*control.Get()), value); });
  std::printf("a property set, C++            %8.1f ns\n", direct);
  std::printf("  early bound                  %8.1f ns  %.1f times\n", early, early / direct);
  std::printf("a bare IDispatch, by number    %8.1f ns\n", bareLate);
  std::printf("  the control, by number       %8.1f ns  %.1f times\n", late, late / bareLate);
  std::printf("a bare IDispatch, by name      %8.1f ns\n", bareNamed);
  std::printf("  the control, by name         %8.1f ns  %.1f times\n", named, named / bareNamed);
}

/// A container's bag that holds a few values.
class FewValues : public TestObject<IPropertyBag> {
 public:
  HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override {
    const std::wstring asked(name);
    V_VT(value) = VT_I4;
    V_I4(value) = asked == L"ElementType" ? 4 : 30;
    return asked == L"ElementType" || asked == L"SizeX" ? S_OK : E_INVALIDARG;
  }
  HRESULT STDMETHODCALLTYPE Write(LPCOLESTR, VARIANT*) override { return S_OK; }
};

/// One form with many controls: made, loaded, placed and drawn.
void ManyControls() {
  constexpr int Count = 500, InRow = 25, Pitch = 32;
  std::vector<std::unique_ptr<Container>> sites;
  for (int index = 0; index < Count; ++index) {
    auto& site = sites.emplace_back(std::make_unique<Container>(index == 0 ? nullptr : sites.front()->window));
    const LONG x = index % InRow * Pitch, y = index / InRow * Pitch;
    site->place = {x, y, x + 30, y + 30};
  }
  SetWindowPos(sites.front()->window, nullptr, 0, 0, InRow * Pitch, Count / InRow * Pitch, SWP_NOZORDER);
  Container::Pump();
  FewValues bag;
  const auto start = std::chrono::steady_clock::now();
  for (const auto& site : sites) {
    const auto control = Library::Instance().Create();
    As<IPersistPropertyBag>(control)->Load(&bag, nullptr);
    control->put_SizeY(30);
    site->Place(control.Get());
  }
  Container::Pump();
  const std::chrono::duration<double, std::milli> passed = std::chrono::steady_clock::now() - start;
  std::printf("500 controls made, loaded from bags, placed and drawn on one form: %.0f ms\n", passed.count());
  while (!sites.empty()) sites.pop_back();
}

}  // namespace

}  // namespace plexel::activex

int main() {
  OleInitialize(nullptr);
  plexel::activex::Calls();
  plexel::activex::ManyControls();
  std::printf("the library may go: %s\n", plexel::activex::Library::Instance().CanUnload() == S_OK ? "yes" : "no");
  OleUninitialize();
}

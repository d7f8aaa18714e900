#include <gtest/gtest.h>
#include <olectl.h>

#include <algorithm>
#include <functional>
#include <set>

#include "activex/container.h"
#include "activex/late.h"
#include "activex/library.h"
#include "activex/sinks.h"

namespace plexel::activex {

namespace {

/// The interfaces of the control, and how many functions of each take nothing but what is not null.
const IID* const interfaces[] = {
    &__uuidof(IUnknown),
    &__uuidof(IDispatch),
    &__uuidof(_ctlPlexelBaseElement),
    &__uuidof(IOleObject),
    &__uuidof(IOleControl),
    &__uuidof(IOleWindow),
    &__uuidof(IOleInPlaceObject),
    &__uuidof(IOleInPlaceActiveObject),
    &__uuidof(IViewObject),
    &__uuidof(IViewObject2),
    &__uuidof(IPersist),
    &__uuidof(IPersistPropertyBag),
    &__uuidof(IPersistStreamInit),
    &__uuidof(IPersistStorage),
    &__uuidof(IConnectionPointContainer),
    &__uuidof(IProvideClassInfo),
    &__uuidof(IProvideClassInfo2),
    &__uuidof(ISupportErrorInfo),
};

/// Interfaces with the number of their functions, and which of these may do something else with nothing but zeros than
/// answer E_POINTER.
struct Walk {
  const IID* iid;
  int count;
  std::set<int> others;
};

ComPointer<IUnknown> FaceOf(IUnknown* control, REFIID iid) {
  ComPointer<IUnknown> face;
  EXPECT_EQ(control->QueryInterface(iid, face.OutVoid()), S_OK) << NameOf(iid);
  return face;
}

ULONG HoldsOn(IUnknown* object) {
  object->AddRef();
  return object->Release();
}

struct Robustness : testing::Test {
  ~Robustness() override {
    control = nullptr;
    EXPECT_EQ(Library::Instance().CanUnload(), S_OK);
  }
  ComPointer<_ctlPlexelBaseElement> control = Library::Instance().Create();
};

}  // namespace

TEST_F(Robustness, EveryInterfaceLeadsToEveryOtherAndToOneIdentity) {
  const auto identity = As<IUnknown>(control);
  for (const IID* from : interfaces) {
    const auto face = FaceOf(control.Get(), *from);
    for (const IID* to : interfaces) FaceOf(face.Get(), *to);
    EXPECT_EQ(As<IUnknown>(face).Get(), identity.Get());
  }
  void* none = this;
  EXPECT_EQ(control->QueryInterface(__uuidof(IClassFactory), &none), E_NOINTERFACE);
  EXPECT_EQ(none, nullptr);
  EXPECT_EQ(HoldsOn(identity.Get()), 2U);
}

#ifdef _WIN64
TEST_F(Robustness, NullInEveryArgumentIsRefused) {
  // On this system a function may be called with more arguments than it takes.
  using Function =
      HRESULT(STDMETHODCALLTYPE*)(void*, void*, void*, void*, void*, void*, void*, void*, void*, void*, void*);
  const std::vector<Walk> walks = {
      {&__uuidof(IDispatch), 7, {4, 5, 6}},  // the names and calls of members ask for IID_NULL first
      {&__uuidof(IOleObject), 24, {3, 6, 7, 9, 11, 13, 14, 20, 23}},
      {&__uuidof(IOleControl), 7, {5, 6}},
      {&__uuidof(IOleInPlaceObject), 9, {4, 5, 6, 8}},
      {&__uuidof(IOleInPlaceActiveObject), 10, {4, 6, 7, 9}},
      {&__uuidof(IViewObject2), 10, {3, 5, 6, 7, 8, 9}},
      {&__uuidof(IPersistPropertyBag), 7, {4}},
      {&__uuidof(IPersistStreamInit), 9, {4, 8}},
      {&__uuidof(IPersistStorage), 10, {4, 8, 9}},
      {&__uuidof(IConnectionPointContainer), 5, {}},
      {&__uuidof(IProvideClassInfo2), 5, {}},
  };
  for (const Walk& walk : walks) {
    const auto face = FaceOf(control.Get(), *walk.iid);
    auto** const table = *reinterpret_cast<Function**>(face.Get());
    for (int slot = 3; slot < walk.count; ++slot) {
      if (*walk.iid == __uuidof(IDispatch) && walk.others.count(slot) != 0) continue;
      const HRESULT result = table[slot](face.Get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                         nullptr, nullptr, nullptr);
      if (walk.others.count(slot) == 0) {
        EXPECT_EQ(result, E_POINTER) << NameOf(*walk.iid) << " " << slot;
      }
    }
  }
  EXPECT_EQ(control->QueryInterface(__uuidof(IUnknown), nullptr), E_POINTER);
}

TEST_F(Robustness, NullForEveryPropertyIsRefused) {
  using Function = HRESULT(STDMETHODCALLTYPE*)(void*, void*, void*, void*);
  ComPointer<ITypeInfo> type, functions;
  HREFTYPE own = 0;
  ASSERT_EQ(control->GetTypeInfo(0, 0, type.Out()), S_OK);
  ASSERT_EQ(type->GetRefTypeOfImplType(static_cast<UINT>(-1), &own), S_OK);
  ASSERT_EQ(type->GetRefTypeInfo(own, functions.Out()), S_OK);
  auto** const table = *reinterpret_cast<Function**>(control.Get());
  int refused = 0;
  FUNCDESC* function = nullptr;
  for (UINT index = 0; SUCCEEDED(functions->GetFuncDesc(index, &function)); ++index) {
    const bool dialog = function->memid == 46 || function->memid == 47;
    const bool pointer = function->cParams > 0 && function->lprgelemdescParam[function->cParams - 1].tdesc.vt == VT_PTR;
    if (!dialog && function->memid > 0 && function->memid < 0x10000) {
      const auto slot = static_cast<std::size_t>(function->oVft) / sizeof(void*);
      const HRESULT result = table[slot](control.Get(), nullptr, nullptr, nullptr);
      if (pointer && function->invkind != INVOKE_PROPERTYPUTREF) {
        EXPECT_EQ(result, E_POINTER) << function->memid;
        ++refused;
      }
    }
    functions->ReleaseFuncDesc(function);
  }
  EXPECT_EQ(refused, 48);  // 45 properties fetched, two records and a result
}
#endif

TEST_F(Robustness, CallsByNameWithWrongArgumentsAreRefused) {
  DISPPARAMS none{};
  EXPECT_EQ(control->Invoke(11, IID_NULL, 0, DISPATCH_PROPERTYGET, nullptr, nullptr, nullptr, nullptr), E_POINTER);
  EXPECT_EQ(control->Invoke(11, __uuidof(IDispatch), 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
            DISP_E_UNKNOWNINTERFACE);
  for (const DISPID member : {-5, 0, 53, 1000, 0x7FFFFFFF}) {
    EXPECT_EQ(control->Invoke(member, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
  }
  EXPECT_EQ(control->Invoke(11, IID_NULL, 0, DISPATCH_PROPERTYPUT, &none, nullptr, nullptr, nullptr),
            DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(control->Invoke(11, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(control->Invoke(48, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
            DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(control->Invoke(11, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr), S_OK);
  DISPPARAMS missing{nullptr, nullptr, 1, 0};
  EXPECT_EQ(control->Invoke(11, IID_NULL, 0, DISPATCH_PROPERTYPUT, &missing, nullptr, nullptr, nullptr), E_POINTER);
  EXPECT_EQ(control->Invoke(50, IID_NULL, 0, DISPATCH_METHOD, &missing, nullptr, nullptr, nullptr), E_POINTER);
  VARIANT values[2] = {Number(2), Number(3)};
  DISPID names[2] = {1, 1};
  DISPPARAMS twice{values, names, 2, 2};
  EXPECT_EQ(control->Invoke(52, IID_NULL, 0, DISPATCH_METHOD, &twice, nullptr, nullptr, nullptr), DISP_E_PARAMNOTFOUND);
  DISPID numbers[3] = {};
  const wchar_t* asked[3] = {L"CheckIfLedIsAlreadyDefined", L"layer", L"ledtype"};
  EXPECT_EQ(control->GetIDsOfNames(IID_NULL, const_cast<wchar_t**>(asked), 3, 0, numbers), S_OK);
  EXPECT_EQ(numbers[1], 1);
  EXPECT_EQ(numbers[2], 0);
  asked[2] = L"colour";
  EXPECT_EQ(control->GetIDsOfNames(IID_NULL, const_cast<wchar_t**>(asked), 3, 0, numbers), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(numbers[2], DISPID_UNKNOWN);
}

TEST_F(Robustness, AContainerMayLackEverything) {
  Container container;
  container.lacking = {__uuidof(IOleInPlaceSite), __uuidof(IOleControlSite), __uuidof(IServiceProvider),
                       __uuidof(IOleContainer),   __uuidof(IDispatch),       __uuidof(IOleInPlaceFrame)};
  EXPECT_EQ(container.Place(control.Get(), true), E_FAIL);
  VARIANT_BOOL answer = 0;
  EXPECT_EQ(control->CheckIfLedIsAlreadyDefined(::PowerLed, 1, &answer), STD_CTL_SCODE(438));
  container.lacking.erase(container.lacking.begin());
  EXPECT_EQ(container.Object()->DoVerb(OLEIVERB_UIACTIVATE, nullptr, &container, 0, nullptr, nullptr), S_OK);
  SendMessageW(container.ControlWindow(), WM_LBUTTONUP, 0, 0);
  SendMessageW(container.ControlWindow(), WM_PAINT, 0, 0);
  container.TakeOut();
  EXPECT_EQ(container.holds, 0U);
}

TEST_F(Robustness, AContainerMayLieAboutItsInterfaces) {
  Container container;
  container.lying = {__uuidof(IOleInPlaceSite), __uuidof(IOleControlSite), __uuidof(IServiceProvider),
                     __uuidof(IOleContainer),   __uuidof(IDispatch),       __uuidof(IOleInPlaceFrame)};
  EXPECT_EQ(container.Place(control.Get(), true), E_FAIL);
  VARIANT_BOOL answer = 0;
  EXPECT_EQ(control->CheckIfLedIsAlreadyDefined(::PowerLed, 1, &answer), STD_CTL_SCODE(438));
  container.lying.erase(container.lying.begin());
  EXPECT_EQ(container.Object()->DoVerb(OLEIVERB_UIACTIVATE, nullptr, &container, 0, nullptr, nullptr), S_OK);
  container.TakeOut();
  EXPECT_EQ(container.holds, 0U);
}

TEST_F(Robustness, AContainerMayRefuseToActivate) {
  Container container;
  container.canActivate = S_FALSE;
  EXPECT_EQ(container.Place(control.Get()), E_FAIL);
  EXPECT_TRUE(container.calls.empty());
  container.canActivate = S_OK;
  container.context = E_UNEXPECTED;
  EXPECT_EQ(container.Place(control.Get()), E_UNEXPECTED);
  EXPECT_EQ(container.calls, (std::vector<std::string>{"OnInPlaceActivate", "OnInPlaceDeactivate"}));
  container.context = S_OK;
  const HWND window = std::exchange(container.window, reinterpret_cast<HWND>(0x1234567));
  EXPECT_EQ(container.Place(control.Get()), E_FAIL);
  container.window = window;
  EXPECT_EQ(container.Place(control.Get()), S_OK);
}

TEST_F(Robustness, TheHostMayLetGoInEachHandler) {
  for (int way = 0; way < 5; ++way) {
    control = Library::Instance().Create();
    Container container;
    EventSink sink;
    NoticeSink notices;
    auto events = std::make_unique<Connection>(control.Get(), __uuidof(__ctlPlexelBaseElement), &sink);
    auto properties = std::make_unique<Connection>(control.Get(), __uuidof(IPropertyNotifySink), &notices);
    ASSERT_EQ(container.Place(control.Get(), way < 2), S_OK);  // a press gives the focus first
    int told = 0;
    const auto letGo = [&] {
      ++told;
      events.reset();
      properties.reset();
      container.TakeOut();
      control = nullptr;
    };
    if (way == 4) {
      notices.onChanged = [&](DISPID) { letGo(); };
    } else {
      sink.onEvent = [&](DISPID) { letGo(); };
    }
    const HWND window = container.ControlWindow();
    auto* const raw = control.Get();
    switch (way) {
      case 0:
        SendMessageW(window, WM_LBUTTONUP, 0, 0);
        break;
      case 1:
        SendMessageW(window, WM_LBUTTONDBLCLK, 0, 0);
        break;
      case 2:
        SetFocus(window);
        break;
      case 3:
        SendMessageW(window, WM_SETFOCUS, 0, 0);
        break;
      default:
        raw->put_ShowX(VARIANT_TRUE);
        break;
    }
    EXPECT_EQ(told, 1) << way;
    EXPECT_FALSE(control) << way;
    EXPECT_EQ(IsWindow(window), FALSE) << way;
    EXPECT_EQ(container.holds + sink.holds + notices.holds, 0U) << way;
    EXPECT_EQ(Library::Instance().CanUnload(), S_OK) << way;
  }
}

TEST_F(Robustness, TheHostMayLetGoInEachCallToItsSite) {
  for (const char* call :
       {"OnInPlaceActivate", "ShowObject", "OnUIActivate", "SetActiveObject", "OnFocus", "OnPosRectChange",
        "OnUIDeactivate", "SetActiveObject none", "OnInPlaceDeactivate", "OnFocus lost"}) {
    control = Library::Instance().Create();
    Container container;
    int told = 0;
    container.onCall = [&](const std::string& name) {
      if (name != call || !control) return;
      ++told;
      control = nullptr;
      container.TakeOut();
    };
    container.Place(control.Get(), true);
    if (control) control->put_ZoomFactor(100);
    if (control) control->put_SizeX(70);
    if (container.Object()) SetFocus(container.window);
    container.TakeOut();
    control = nullptr;
    EXPECT_EQ(told, 1) << call;
    EXPECT_EQ(container.holds, 0U) << call;
    EXPECT_EQ(Library::Instance().CanUnload(), S_OK) << call;
  }
}

TEST_F(Robustness, TheContainersWindowMayGoFirst) {
  Container container;
  ASSERT_EQ(container.Place(control.Get(), true), S_OK);
  DestroyWindow(container.window);
  HWND window = nullptr;
  EXPECT_EQ(As<IOleInPlaceObject>(control)->GetWindow(&window), E_FAIL);
  EXPECT_EQ(control->put_SizeX(4), S_OK);
  container.TakeOut();
  EXPECT_EQ(container.holds, 0U);
}

TEST_F(Robustness, InterfacesAreLetGoOfInEveryOrder) {
  std::vector<std::size_t> order = {0, 1, 2, 3, 4};
  do {
    std::vector<ComPointer<IUnknown>> faces;
    const auto made = Library::Instance().Create();
    for (const IID* iid : {&__uuidof(IUnknown), &__uuidof(IOleObject), &__uuidof(IViewObject2),
                           &__uuidof(IPersistStreamInit), &__uuidof(IConnectionPointContainer)}) {
      faces.push_back(FaceOf(made.Get(), *iid));
    }
    for (const std::size_t index : order) faces[index] = nullptr;
    EXPECT_EQ(HoldsOn(made.Get()), 1U);
  } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(Robustness, AControlMayBeAPartOfAnotherObject) {
  struct Outer : TestObject<NoNames<IDispatch>> {
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
      if (iid == __uuidof(IUnknown)) return TestObject::QueryInterface(iid, object);
      return inner->QueryInterface(iid, object);
    }
    ComPointer<IUnknown> inner;
  } outer;
  IUnknown* const whole = static_cast<NoNames<IDispatch>*>(&outer);
  void* refused = nullptr;
  EXPECT_EQ(Library::Instance().Factory()->CreateInstance(whole, __uuidof(IOleObject), &refused),
            CLASS_E_NOAGGREGATION);
  ASSERT_EQ(Library::Instance().Factory()->CreateInstance(whole, __uuidof(IUnknown), outer.inner.OutVoid()), S_OK);
  EXPECT_EQ(outer.holds, 0U);
  {
    const auto object = As<IOleObject>(whole);
    EXPECT_EQ(outer.holds, 1U);
    EXPECT_EQ(As<IUnknown>(object).Get(), whole);
    Container container;
    EXPECT_EQ(container.Place(whole), S_OK);
    EXPECT_EQ(As<_ctlPlexelBaseElement>(whole)->put_SizeX(3), S_OK);
  }
  EXPECT_EQ(outer.holds, 0U);
  outer.inner = nullptr;
}

TEST_F(Robustness, TheLibraryMayGoWhenTheLastOfAllIsLetGoOf) {
  control = nullptr;
  EXPECT_EQ(Library::Instance().CanUnload(), S_OK);
  auto factory = Library::Instance().Factory();
  EXPECT_EQ(Library::Instance().CanUnload(), S_FALSE);
  factory->LockServer(TRUE);
  factory = nullptr;
  EXPECT_EQ(Library::Instance().CanUnload(), S_FALSE);
  Library::Instance().Factory()->LockServer(FALSE);
  EXPECT_EQ(Library::Instance().CanUnload(), S_OK);
  control = Library::Instance().Create();
  VARIANT record;
  ASSERT_EQ(Late(control.Get()).Get(L"TactisBaseElementScanCodeBuffer", record), S_OK);
  ComPointer<IEnumConnectionPoints> points;
  As<IConnectionPointContainer>(control)->EnumConnectionPoints(points.Out());
  control = nullptr;
  EXPECT_EQ(Library::Instance().CanUnload(), S_FALSE);
  points = nullptr;
  EXPECT_EQ(Library::Instance().CanUnload(), S_FALSE);
  VariantClear(&record);
}

TEST_F(Robustness, TwoHundredControlsComeAndGo) {
  Container site;
  for (int round = 0; round < 3; ++round) {
    std::vector<ComPointer<_ctlPlexelBaseElement>> many;
    for (int index = 0; index < 200; ++index) {
      many.push_back(Library::Instance().Create());
      Late late(many.back().Get());
      late.Put(L"ZoomFactor", 100);
      late.Put(L"SizeX", index);
    }
    for (int index = 0; index < 200; ++index)
      EXPECT_EQ(Late(many[static_cast<std::size_t>(index)].Get()).Get(L"SizeX"), L"2:" + std::to_wstring(index));
  }
}

static DWORD WINAPI AskForAControl(void* answer) {
  CoInitialize(nullptr);
  ComPointer<_ctlPlexelBaseElement> other;
  *static_cast<HRESULT*>(answer) =
      Library::Instance().Factory()->CreateInstance(nullptr, __uuidof(_ctlPlexelBaseElement), other.OutVoid());
  other = nullptr;
  CoUninitialize();
  return 0;
}

TEST_F(Robustness, AnotherThreadGetsNoControlWhileOneIsThere) {
  HRESULT result = S_OK;
  HANDLE thread = CreateThread(nullptr, 0, AskForAControl, &result, 0, nullptr);
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
  EXPECT_EQ(result, RPC_E_WRONG_THREAD);
}

}  // namespace plexel::activex

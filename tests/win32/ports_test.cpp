#include <gtest/gtest.h>

#include "win32/desk.h"
#include "win32/key_sender.h"

namespace plexel {

namespace {

/// What a hook was told of one key.
struct Told {
  std::int32_t message;
  LowLevelKey key;
};
std::vector<Told> theTold;
std::int32_t theHook = 0;

std::int32_t Note(std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam) {
  if (nCode == 0) theTold.push_back({wParam, *reinterpret_cast<const LowLevelKey*>(lParam)});
  return Platform::Current().Hooks().CallNext(0, nCode, wParam, lParam);
}

std::int32_t Keep(std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam) {
  Note(nCode, wParam, lParam);
  return -1;
}

void PumpUntil(const std::function<bool()>& done) {
  constexpr DWORD Patience = 3000;
  const DWORD start = GetTickCount();
  MSG message;
  while (!done() && GetTickCount() - start < Patience) {
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) DispatchMessageW(&message);
    Sleep(1);
  }
}

}  // namespace

TEST(LowLevelHook, TellsKeysOfAnotherProcess) {
  Desk desk;
  KeySender sender;
  theTold.clear();
  theHook = desk.platform.Hooks().Install(HookKind::LowLevelKeyboard, Note);
  ASSERT_NE(theHook, 0);
  sender.Send("down 41 1E\nup 41 1E\ndown 12 38\ndown 09 0F\nup 09 0F\nup 12 38\ndown 26 48 e\nup 26 48 e\n");
  PumpUntil([] { return theTold.size() == 8; });
  constexpr std::int32_t Injected = 0x10, Extended = 1, Alt = 0x20, Up = 0x80;
  const std::vector<Told> wanted = {{0x100, {0x41, 0x1E, Injected}},
                                    {0x101, {0x41, 0x1E, Injected | Up}},
                                    {0x104, {0x12, 0x38, Injected | Alt}},
                                    {0x104, {0x09, 0x0F, Injected | Alt}},
                                    {0x105, {0x09, 0x0F, Injected | Alt | Up}},
                                    {0x101, {0x12, 0x38, Injected | Up}},
                                    {0x100, {0x26, 0x48, Injected | Extended}},
                                    {0x101, {0x26, 0x48, Injected | Extended | Up}}};
  ASSERT_EQ(theTold.size(), wanted.size());
  for (std::size_t place = 0; place < wanted.size(); ++place) {
    EXPECT_EQ(theTold[place].message, wanted[place].message) << place;
    EXPECT_EQ(theTold[place].key.virtualKey, wanted[place].key.virtualKey) << place;
    EXPECT_EQ(theTold[place].key.scanCode, wanted[place].key.scanCode) << place;
    EXPECT_EQ(theTold[place].key.flags, wanted[place].key.flags) << place;
  }
  EXPECT_EQ(desk.platform.Hooks().Remove(theHook), 1);
  EXPECT_EQ(desk.platform.Hooks().Remove(theHook), 0);
}

TEST(LowLevelHook, KeepsAKeyFromTheSystem) {
  Desk desk;
  KeySender sender;
  theTold.clear();
  SetForegroundWindow(desk.window->Handle());
  const std::int32_t hook = desk.platform.Hooks().Install(HookKind::LowLevelKeyboard, Keep);
  sender.Send("down 42 30\n");
  PumpUntil([] { return theTold.size() == 1; });
  EXPECT_EQ(theTold.size(), 1U);
  EXPECT_GE(desk.platform.Keys().Asynchronous(0x42), 0);
  desk.platform.Hooks().Remove(hook);
  sender.Send("down 42 30\n");
  PumpUntil([&] { return desk.platform.Keys().Asynchronous(0x42) < 0; });
  EXPECT_LT(desk.platform.Keys().Asynchronous(0x42), 0);
  sender.Send("up 42 30\n");
  PumpUntil([&] { return desk.platform.Keys().Asynchronous(0x42) >= 0; });
  EXPECT_GE(desk.platform.Keys().Asynchronous(0x42), 0);
}

TEST(Hooks, WhatAProcedureThrowsDoesNotCrossTheSystem) {
  Desk desk;
  KeySender sender;
  SetForegroundWindow(desk.window->Handle());
  const auto failing = [](std::int32_t, std::int32_t, std::intptr_t) -> std::int32_t {
    throw Failure(FailureKind::Platform, "the hook failed");
  };
  const std::int32_t hook = desk.platform.Hooks().Install(HookKind::Keyboard, failing);
  EXPECT_TRUE(desk.platform.Modal().Captures());
  sender.Send("down 43 2E\nup 43 2E\n");
  PumpUntil([&] { return desk.failures.size() >= 2; });
  ASSERT_GE(desk.failures.size(), 2U);
  for (const std::string& failure : desk.failures) EXPECT_EQ(failure, "the hook failed");
  EXPECT_EQ(desk.platform.Hooks().Remove(hook), 1);
  EXPECT_FALSE(desk.platform.Modal().Captures());
}

TEST(Layout, GivesTheCharactersOfPlainKeys) {
  Desk desk;
  KeyboardLayout& layout = desk.platform.Layout();
  char16_t text[8] = {};
  EXPECT_EQ(layout.ToUnicode('A', 0x1E, text, 8, layout.Current()), 1);
  EXPECT_EQ(text[0], u'a');
  EXPECT_EQ(layout.ToUnicode(VK_F5, 0x3F, text, 8, layout.Current()), 0);
  std::uint16_t code = 0;
  EXPECT_EQ(layout.ToAscii('B', 0x30, code, layout.Current()), 1);
  EXPECT_EQ(code, 'b');
}

TEST(Registry, KeepsTheTextsOfAKeyThatExists) {
  constexpr char Path[] = "SOFTWARE\\Plexel test\\PARAMETERS";
  NativeRegistry registry;
  std::intptr_t key = 0;
  EXPECT_NE(registry.OpenKey(Registry::CurrentUser, Path, 0, Registry::AccessSetValue, key), 0);
  HKEY made = nullptr;
  ASSERT_EQ(RegCreateKeyA(HKEY_CURRENT_USER, Path, &made), 0);
  ASSERT_EQ(registry.OpenKey(Registry::CurrentUser, Path, 0, Registry::AccessSetValue, key), 0);
  EXPECT_EQ(registry.SetValue(key, "ConfigDialogTop", 0, Registry::TypeText, "1234.5 and more", 6), 0);
  EXPECT_EQ(registry.CloseKey(key), 0);
  char text[20] = {};
  DWORD size = sizeof text, type = 0;
  EXPECT_EQ(RegQueryValueExA(made, "ConfigDialogTop", nullptr, &type, reinterpret_cast<BYTE*>(text), &size), 0);
  EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
  EXPECT_STREQ(text, "1234.5");
  RegCloseKey(made);
  RegDeleteKeyA(HKEY_CURRENT_USER, Path);
  RegDeleteKeyA(HKEY_CURRENT_USER, "SOFTWARE\\Plexel test");
}

TEST(Screen, MeasuresAgree) {
  NativeScreen screen;
  const std::intptr_t context = screen.CreateInformationContext();
  ASSERT_NE(context, 0);
  const std::int32_t dpi = screen.DeviceCapability(context, Screen::LogicalPixelsX);
  screen.DeleteContext(context);
  EXPECT_GT(dpi, 0);
  EXPECT_FLOAT_EQ(screen.TwipsPerPixelX(), 1440.0F / static_cast<float>(dpi));
  EXPECT_FLOAT_EQ(screen.TwipsPerPixelY(), screen.TwipsPerPixelX());
}

TEST(Version, IsOfTheFamilyWithKeysOfItsOwn) {
  NativeVersion version;
  OsVersionRecord record;
  record.size = 148;
  version.Get(record);
  EXPECT_EQ(record.platformId, 2);
  OsVersionRecord wrong;
  wrong.size = 3;
  version.Get(wrong);
  EXPECT_EQ(wrong.platformId, 0);
}

TEST(Help, AMissingViewerIsAFailure) {
  NativeHelp help;
  help.library = "no such library.ocx";
  EXPECT_THROW(help.Show(0, "Help\\PlexelEnglish.chm", HelpViewer::HelpContext, 2000), Failure);
  help.library = "kernel32.dll";
  EXPECT_THROW(help.Show(0, "Help\\PlexelEnglish.chm", HelpViewer::HelpContext, 2000), Failure);
}

TEST(MessageBoxes, AnswerWithTheButton) {
  Desk desk;
  const auto press = [](WORD button) {
    return [button] {
      const HWND box = FindWindowW(L"#32770", L"größer 操作盤");
      if (box == nullptr) return false;
      PostMessageW(box, WM_COMMAND, button, 0);
      return true;
    };
  };
  const std::string title = "größer 操作盤";
  desk.Until("the question", press(IDNO));
  EXPECT_EQ(desk.platform.Messages().Show("?", MessageBoxes::StyleYesNoCancel, title), MessageAnswer::No);
  desk.Until("the message", press(IDOK));
  EXPECT_EQ(desk.platform.Messages().Show("!", MessageBoxes::StyleOkOnly | MessageBoxes::StyleCritical, title),
            MessageAnswer::OK);
  EXPECT_TRUE(desk.Done());
}

}  // namespace plexel

#include <gtest/gtest.h>

#include <fstream>

#include "element/ctlPlexelBaseElement.h"
#include "files/data_directory.h"
#include "headless/headless_platform.h"
#include "headless/headless_surroundings.h"
#include "headless/memory_bag.h"
#include "headless/memory_registry.h"
#include "win32/desk.h"
#include "win32/win32_component.h"
#include "win32/win32_platform.h"

namespace plexel {

namespace {

const wchar_t *theTitle, *theButton;

void CALLBACK PressIfOpen(HWND, UINT, UINT_PTR timer, DWORD) {
  const HWND dialog = FindWindowW(L"PlexelForm", theTitle);
  const HWND found = dialog == nullptr ? nullptr : FindWindowExW(dialog, nullptr, L"Button", theButton);
  if (found == nullptr) return;
  KillTimer(nullptr, timer);
  PostMessageW(found, BM_CLICK, 0, 0);
}

/// Presses a button of the dialog that opens, as soon as it is there.
void PressWhenOpen(const wchar_t* title, const wchar_t* button) {
  theTitle = title;
  theButton = button;
  SetTimer(nullptr, 0, 20, PressIfOpen);
}

}  // namespace

TEST(Win32Component, KeepsServicesAndPlacesOfDialogsInFiles) {
  TemporaryFolder folder;
  Faults faults;
  RecordingHost host(faults);
  {
    Win32Component component(DataDirectory(), folder.Path());
    const auto element = component.Create("F1", host);
    element->ElementType(Rect);
    element->TargetSystem("Standard");
    PressWhenOpen(L"Configure key", L"OK");
    element->OpenConfigurationDialog();
    EXPECT_EQ(element->WizardOptions(), ManuallyDefined);
    MemoryBag bag;
    element->UserControl_WriteProperties(bag);
    EXPECT_EQ(component.Read("F2", host, bag)->WizardOptions(), ManuallyDefined);
  }
  bool kept = false;
  for (const auto& file : std::filesystem::directory_iterator(folder.Path())) {
    std::ifstream lines(file.path());
    for (std::string line; std::getline(lines, line);) kept = kept || line.starts_with("ConfigDialogTop=");
  }
  EXPECT_TRUE(kept);
}

TEST(Win32Component, TakesServicesOfTheHost) {
  HeadlessPlatform memory;
  HeadlessSurroundings surroundings(memory);
  surroundings.Language().Source([] { return HeadlessLanguage::Texts{{2005, "Ein Titel"}, {153, "Gut"}}; });
  MemoryRegistry& registry = memory.UserRegistry();
  Win32Component component(surroundings, registry);
  EXPECT_EQ(&component.Services(), &surroundings);
  EXPECT_EQ(&component.Desktop().UserRegistry(), &registry);
  RecordingHost host(memory.faults);
  const auto element = component.Create("F1", host);
  element->ElementType(Rect);
  PressWhenOpen(L"Ein Titel", L"Gut");
  element->OpenConfigurationDialog();
  EXPECT_EQ(host.Count("ProjectModified"), 1);
}

TEST(Win32Component, IsOneAtATime) {
  TemporaryFolder folder;
  Faults faults;
  RecordingHost host(faults);
  Win32Component first(DataDirectory(), folder.Path());
  EXPECT_THROW(Win32Component(DataDirectory(), folder.Path()), std::logic_error);
  const auto element = first.Create("F1", host);
  element->ElementType(Rect);
  PressWhenOpen(L"Configure key", L"OK");
  element->OpenConfigurationDialog();
  EXPECT_EQ(host.Count("ProjectModified"), 1) << "the first goes on undisturbed";
}

}  // namespace plexel

#include "win32/desk.h"

#include <gtest/gtest.h>

#include "dialogs/dialog_visits.h"
#include "element/ctlPlexelBaseElement.h"
#include "files/data_directory.h"

namespace plexel {

namespace {

Desk* theDesk = nullptr;
constexpr UINT TickMilliseconds = 15;
constexpr int MostTries = 600;

}  // namespace

TestWindow::TestWindow()
    : window_(CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, 500, 300, nullptr,
                              nullptr, nullptr, nullptr)) {}

TestWindow::~TestWindow() { DestroyWindow(window_); }

TemporaryFolder::TemporaryFolder() {
  static int number = 0;
  path_ = std::filesystem::temp_directory_path() /
          ("plexel-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++number));
  std::filesystem::create_directories(path_);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

Desk::Desk(const std::string& language)
    : surroundings(DataDirectory(), folder.Path()),
      platform(surroundings.UserRegistry()),
      component(platform, surroundings) {
  surroundings.ChooseLanguage(language);
  platform.OnFailure([this](const std::string& what) { failures.push_back(what); });
  theDesk = this;
  timer_ = SetTimer(nullptr, 0, TickMilliseconds, Tick);
}

Desk::~Desk() {
  KillTimer(nullptr, timer_);
  theDesk = nullptr;
}

std::shared_ptr<ctlPlexelBaseElement> Desk::Element(enumTactisBaseElementType type) {
  auto element = component.Create("F1", host);
  dialogs::Visit{type}.SetUp(*element);
  element->ParentWindow(window);
  return element;
}

void Desk::Until(const std::string& what, std::function<bool()> step) { steps_.push_back({what, std::move(step)}); }

void Desk::Then(const std::string& what, std::function<void()> step) {
  Until(what, [step = std::move(step)] {
    step();
    return true;
  });
}

void CALLBACK Desk::Tick(HWND, UINT, UINT_PTR, DWORD) {
  if (theDesk != nullptr) theDesk->Turn();
}

void Desk::Turn() {
  if (inside_ || Done()) return;
  const Step step = steps_[next_];
  // A step may open a dialog, within which the following ones run.
  const std::size_t here = next_++;
  const int tries = tries_;
  tries_ = 0;
  inside_ = false;
  bool done = false;
  try {
    done = step.act();
  } catch (const std::exception& failure) {
    ADD_FAILURE() << step.what << ": " << failure.what();
    next_ = steps_.size();
    return Close();
  }
  if (done) return;
  next_ = here;
  tries_ = tries + 1;
  if (tries_ < MostTries) return;
  ADD_FAILURE() << "this did not come true: " << step.what;
  next_ = steps_.size();
  Close();
}

void Desk::Close() {
  while (FormView* const view = platform.Modal().Topmost()) {
    if (!view->Model().IsShown()) break;
    view->Model().Unload();
  }
}

void Desk::Press(HWND target, int x, int y, bool twice) {
  const LPARAM place = MAKELPARAM(x, y);
  SendMessageW(target, WM_LBUTTONDOWN, MK_LBUTTON, place);
  SendMessageW(target, WM_LBUTTONUP, 0, place);
  if (!twice) return;
  SendMessageW(target, WM_LBUTTONDBLCLK, MK_LBUTTON, place);
  SendMessageW(target, WM_LBUTTONUP, 0, place);
}

}  // namespace plexel

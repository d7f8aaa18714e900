#pragma once

#include <windows.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "component/component.h"
#include "files/file_surroundings.h"
#include "forms/form_name.h"
#include "headless/faults.h"
#include "headless/recording_host.h"
#include "win32/native_window.h"
#include "win32/win32_ports.h"

namespace plexel {

/// A window of the host.
class TestWindow : public HostObject, public NativeWindow {
 public:
  TestWindow();
  ~TestWindow() override;
  plexel::Window* AsForm() override { return this; }
  std::string WindowName() const override { return "TestWindow"; }
  HWND__* Handle() const override { return window_; }

 private:
  HWND window_;
};

/// A folder that goes with the object.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

/// The component on this system's own windows, with the product's data. What is to happen while a dialog is open is
/// told ahead, step by step.
class Desk {
 public:
  explicit Desk(const std::string& language = "English");
  ~Desk();

  /// An element with some definitions, over a window of the host.
  std::shared_ptr<ctlPlexelBaseElement> Element(enumTactisBaseElementType type);
  /// Adds a step, which runs once no message waits. It is asked again and again until it answers true; a step that
  /// takes too long fails the test, and what is open is closed.
  void Until(const std::string& what, std::function<bool()> step);
  /// A step that is done with one call.
  void Then(const std::string& what, std::function<void()> step);
  /// Whether all steps ran.
  bool Done() const { return next_ == steps_.size(); }

  FormView& Top() { return *platform.Modal().Topmost(); }
  Form& TopForm() { return Top().Model(); }
  bool IsOpen(FormName name) { return platform.Modal().Topmost() != nullptr && TopForm().Name() == name; }
  template <typename Kind>
  Kind& Find(const std::string& name) {
    return static_cast<Kind&>(*TopForm().Find(name));
  }
  HWND WindowOf(const std::string& name) { return Top().ViewOf(TopForm().Find(name))->Outer(); }
  /// The mouse on a window, as messages.
  static void Press(HWND window, int x, int y, bool twice = false);
  void Close();

  TemporaryFolder folder;
  Faults faults;
  RecordingHost host{faults};
  FileSurroundings surroundings;
  std::shared_ptr<TestWindow> window = std::make_shared<TestWindow>();
  OpenWin32Platform platform;
  Component component;
  std::vector<std::string> failures;  ///< what was reported

 private:
  struct Step {
    std::string what;
    std::function<bool()> act;
  };
  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD);
  void Turn();

  std::vector<Step> steps_;
  std::size_t next_ = 0;
  int tries_ = 0;
  bool inside_ = false;
  UINT_PTR timer_ = 0;
};

}  // namespace plexel

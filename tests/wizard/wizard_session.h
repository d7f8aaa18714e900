#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "forms/hand.h"
#include "world/world.h"

namespace plexel {

/// One element of a panel and the user who goes through its dialogs. Acts are planned first; Open shows the first
/// dialog and carries them out one by one, each on the form that is then the topmost.
///
/// The target system has nothing unless granted.
class WizardSession : public World {
 public:
  using Act = std::function<void()>;

  explicit WizardSession(enumTactisBaseElementType type);
  WizardSession(const WizardSession&) = delete;
  WizardSession& operator=(const WizardSession&) = delete;

  WizardSession& Then(Act act);
  WizardSession& Click(std::string control);
  WizardSession& DblClick(std::string control);
  /// Picks the entry with this text.
  WizardSession& Select(std::string combo, std::string entry);
  WizardSession& Close();
  WizardSession& KeyDown(std::int16_t keyCode, std::int16_t shift = 0);
  /// Plans the press and release of a key on the real keyboard.
  WizardSession& Stroke(std::int32_t virtualKey, std::int32_t scanCode);
  /// Plans a click whose handler fails.
  WizardSession& ClickFails(std::string control);

  /// Opens the configuration of the element, or its properties, and carries out the acts. All of them must be used up,
  /// and every form closed by them.
  void Open();
  void OpenProperties();

  /// The form that is topmost now.
  Form& Top();
  template <typename Kind>
  Kind& Get(std::string_view name) {
    auto* control = dynamic_cast<Kind*>(Top().Find(name));
    if (control == nullptr) throw std::logic_error(Top().Name() + " has no such control: " + std::string(name));
    return *control;
  }

  void Grant(Capability query, std::int32_t answer = 1) { surroundings.Capabilities().Set("*", query, answer); }
  udtTactisBaseElement_ScanCodeInfo Record() { return element->TactisBaseElementScanCodeBuffer(); }
  /// The record with all eight code buffers filled.
  udtTactisBaseElement_ScanCodeInfo FilledRecord();
  bool BuffersAreZero();
  /// The press and release texts of the four layers.
  std::vector<std::string> Texts() const;
  void GiveTexts(const std::string& press, const std::string& release);
  /// The value of a name in the registry, "none" when it was not stored.
  std::string Stored(std::string_view name);

  std::shared_ptr<ctlPlexelBaseElement> element = component.Create("A", host);
  /// Forms as they were shown ("frmButtonWizardPage1 over HostForm at 1800,1500") and their names as they closed.
  std::vector<std::string> shown, closed;

 private:
  void Run(const Act& open);

  std::deque<Act> acts_;
};

/// The first `count` bytes of a buffer, in hexadecimal.
std::string Bytes(const udtTactisBaseElement_TACTIS_SCANCODE& buffer, std::size_t count);

}  // namespace plexel

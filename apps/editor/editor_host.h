#pragma once

#include <QString>
#include <functional>

#include "editor/texts.h"
#include "element/element_host.h"
#include "platform/window.h"

namespace plexel {

/// The window of the editor as the elements know it, which owns their dialogs.
class EditorWindowObject : public HostObject, public Window {
 public:
  Window* AsForm() override { return this; }
  std::string WindowName() const override { return "HostForm"; }
};

/// The container of a panel's elements and the listener to their events.
class EditorHost : public ElementHost {
 public:
  void PropertyChanged(ctlPlexelBaseElement& element, const Notice& notice) override;
  Boolean CheckIfLedIsAlreadyDefined(std::int32_t& LEDType, std::int32_t& Layer) override;
  void DirectInputStatusChanged(ctlPlexelBaseElement& element, Boolean& bDirectInputStatus) override;
  void SendKeyDefinition(ctlPlexelBaseElement& element, KeyDefinition& definition) override;
  void MouseClicked(ctlPlexelBaseElement& element, std::int16_t& Button, std::int16_t& Shift, float& x,
                    float& Y) override;
  void MouseDblClicked(ctlPlexelBaseElement& element) override;
  void ProjectModified(ctlPlexelBaseElement& element) override;

  /// An element looks different or holds something else.
  std::function<void(ctlPlexelBaseElement&)> onChanged;
  /// Whether an element of the panel shows the LED function in the layer.
  std::function<bool(std::int32_t type, std::int32_t layer)> ledIsDefined;
  std::function<void(ctlPlexelBaseElement&)> onDoubleClick;
  /// One event, for the log: in the user's words, and as the precise call.
  std::function<void(const QString& words, const QString& call)> onEvent;

 private:
  void Tell(const ctlPlexelBaseElement& element, Text words, const char* event, const QString& arguments);
};

}  // namespace plexel

#pragma once

#include <windows.h>
#include <wrl/client.h>

#include <string>
#include <vector>

#include "host/container.h"
#include "host/message_window.h"

namespace plexel::host {

/// A container in a window of its own, which keeps what it hears.
class CheckDesk : public MessageWindow {
 public:
  CheckDesk();
  ~CheckDesk() override;

  Container& TheContainer() const { return *container_.Get(); }
  /// The events so far, as calls.
  std::vector<std::string> heard;
  /// Lets waiting messages through. Whether they came to an end: a control that is drawn over and over has none.
  static bool Pump();

 protected:
  LRESULT Message(UINT message, WPARAM wide, LPARAM wider) override;

 private:
  Microsoft::WRL::ComPtr<Container> container_;
};

}  // namespace plexel::host

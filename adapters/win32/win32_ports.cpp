#include "win32/win32_ports.h"

#include <windows.h>

namespace plexel {

void NativeEventPump::DoEvents() {
  constexpr UINT Which = PM_REMOVE | PM_QS_PAINT | PM_QS_POSTMESSAGE | PM_QS_SENDMESSAGE;
  constexpr int Most = 1000;  // a window that posts to itself without end does not keep the program here
  desk_.SyncAll();            // what is drawn now is what the model says
  MSG message;
  for (int count = 0; count < Most && PeekMessageW(&message, nullptr, 0, 0, Which) != FALSE; ++count) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  desk_.SyncAll();
}

}  // namespace plexel

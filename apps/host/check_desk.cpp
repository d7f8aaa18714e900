#include "host/check_desk.h"

namespace plexel::host {

CheckDesk::CheckDesk() : container_(new Container) {
  constexpr RECT Place = {40, 40, 840, 640};
  Make(L"PlexelHost.Check", WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_CLIPCHILDREN, Place, nullptr);
  container_->frame = container_->ground = Handle();
  container_->heard = [this](const std::string&, const ElementEvent& event) { heard.push_back(event.call); };
}

CheckDesk::~CheckDesk() {
  container_->Leave();
  Destroy();
}

LRESULT CheckDesk::Message(UINT message, WPARAM wide, LPARAM wider) { return AsUsual(message, wide, wider); }

bool CheckDesk::Pump() {
  constexpr int Most = 20000;
  MSG message;
  for (int count = 0; count < Most; ++count) {
    if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) == FALSE) return true;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return false;
}

}  // namespace plexel::host

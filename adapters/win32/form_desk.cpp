#include "win32/form_desk.h"

#include "platform/failure.h"

namespace plexel {

void FormDesk::Contain(const std::function<void()>& act) noexcept {
  try {
    try {
      act();
    } catch (const Failure& failure) {
      Report(failure.what());
    }
  } catch (...) {
    Abandon(std::current_exception());
  }
}

}  // namespace plexel

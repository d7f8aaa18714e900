#include "headless/headless_platform.h"

#include "services/shared_services.h"

namespace plexel {

HeadlessPlatform::HeadlessPlatform()
    : hooks_(faults),
      keys_(faults),
      layout_(faults),
      registry_(faults, std::string(PositionKey)),
      screen_(faults),
      version_(faults),
      help_(faults),
      modal_(faults),
      messages_(faults),
      events_(faults) {}

}  // namespace plexel

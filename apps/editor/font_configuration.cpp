#include "editor/font_configuration.h"

#include <fontconfig/fontconfig.h>

namespace plexel {

FontConfiguration::FontConfiguration() : reader_([] { FcInit(); }) {}

void FontConfiguration::Await() {
  if (reader_.joinable()) reader_.join();
}

}  // namespace plexel

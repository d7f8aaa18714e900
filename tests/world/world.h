#pragma once

#include <memory>
#include <string>

#include "component/component.h"
#include "headless/headless_platform.h"
#include "headless/headless_surroundings.h"
#include "headless/host_window.h"
#include "headless/recording_host.h"
#include "services/module_state.h"

namespace plexel {

/// Language text of a number in the world's own language.
inline std::string Text(std::int32_t number) { return "text " + std::to_string(number); }

/// A host program in memory, with all dialogs. The language has no texts until it speaks.
struct World {
  /// From now on text N reads "text N", as far as there are texts.
  void Speak() {
    surroundings.Language().Source([] {
      HeadlessLanguage::Texts texts;
      for (const auto& [first, last] : {std::pair{100, 200}, {2000, 2999}, {5800, 6099}, {10400, 10999}}) {
        for (std::int32_t number = first; number <= last; ++number) texts[number] = Text(number);
      }
      return texts;
    });
  }

  HeadlessPlatform platform;
  HeadlessSurroundings surroundings{platform};
  RecordingHost host{platform.faults};
  Component component{platform, surroundings};
};

}  // namespace plexel

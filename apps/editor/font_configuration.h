#pragma once

#include <thread>

namespace plexel {

/// Reads the system's configuration of fonts on a thread of its own, while the program does what needs no font. The
/// first use of a font would read it otherwise, which takes as long as all else of the toolkit's start.
class FontConfiguration {
 public:
  /// Begins. The locale must be the one that the program keeps.
  FontConfiguration();
  ~FontConfiguration() { Await(); }
  FontConfiguration(const FontConfiguration&) = delete;
  FontConfiguration& operator=(const FontConfiguration&) = delete;

  /// Returns when it is read. No font may be used ahead of that.
  void Await();

 private:
  std::thread reader_;
};

}  // namespace plexel

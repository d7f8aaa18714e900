#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "walker.h"

namespace plexel {

/// Each byte decides once. Behind the last one every choice is the first.
class ByteChoices : public Choices {
 public:
  explicit ByteChoices(std::string_view bytes) : bytes_(bytes) {}
  std::uint32_t Below(std::uint32_t bound) override {
    if (Ended()) return 0;
    const auto byte = static_cast<unsigned char>(bytes_.front());
    bytes_.remove_prefix(1);
    return byte % bound;
  }
  bool Ended() const override { return bytes_.empty(); }

 private:
  std::string_view bytes_;
};

/// What came of acts.
struct Walked {
  std::string broken;  ///< the first promise that did not hold; empty when all did
  int acts = 0;
};

/// Does in the dialogs what the bytes say.
inline Walked Walk(std::string_view bytes) {
  ByteChoices choices(bytes);
  Walker walker(choices);
  while (!choices.Ended() && walker.Broken().empty()) walker.Visit();
  return {walker.Broken(), walker.Acts()};
}

}  // namespace plexel

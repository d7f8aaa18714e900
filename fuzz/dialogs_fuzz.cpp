// Bytes are what a person does in the dialogs, one act after the other, until they end. How many acts that were is told
// at the end.

#include <cstddef>
#include <cstdint>
#include <iostream>
#include <stdexcept>
#include <string_view>

#include "random/byte_choices.h"

namespace {

struct Tally {
  ~Tally() { std::cerr << acts << " acts\n"; }
  std::uint64_t acts = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Tally tally;
  const plexel::Walked walked = plexel::Walk(std::string_view(reinterpret_cast<const char*>(data), size));
  tally.acts += static_cast<std::uint64_t>(walked.acts);
  if (!walked.broken.empty()) throw std::logic_error(walked.broken);
  return 0;
}

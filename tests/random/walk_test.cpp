#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <random>

#include "walker.h"

namespace plexel {
namespace {

constexpr int ActsOfTheWalk = 100000;

/// Chance, which never ends.
class Chance : public Choices {
 public:
  explicit Chance(std::uint64_t seed) : random_(seed) {}
  std::uint32_t Below(std::uint32_t bound) override { return static_cast<std::uint32_t>(random_() % bound); }
  bool Ended() const override { return false; }

 private:
  std::mt19937_64 random_;
};

std::uint64_t Seed() {
  if (const char* given = std::getenv("PLEXEL_SEED")) return std::strtoull(given, nullptr, 10);
  return std::random_device()();
}

TEST(RandomWalk, ADialogKeepsItsPromisesWhateverTheUserDoes) {
  const std::uint64_t seed = Seed();
  std::cout << "seed " << seed << " (PLEXEL_SEED repeats a walk)\n";
  Chance chance(seed);
  Walker walker(chance);
  const auto start = std::chrono::steady_clock::now();
  while (walker.Acts() < ActsOfTheWalk && walker.Broken().empty()) walker.Visit();
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  std::cout << walker.Acts() << " acts in " << time.count() << " s, " << walker.Confirmed() << " confirmed, "
            << walker.Restored() << " undone\n";
  EXPECT_EQ(walker.Broken(), "");
  EXPECT_GT(walker.Confirmed(), 100);
  EXPECT_GT(walker.Restored(), 100);
}

}  // namespace
}  // namespace plexel

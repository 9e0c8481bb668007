#include "platform/Random.h"

#include <random>

namespace pixmosa {

Random::Random() {
  SeedFromSystem();
}

void Random::Seed(std::uint64_t seed) {
  for (std::uint32_t& s : s_) {
    seed += 0x9E3779B97F4A7C15U;
    std::uint64_t z = seed;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    s = (z ^ (z >> 31)) >> 32;
  }
}

void Random::SeedFromSystem() {
  std::random_device rd;
  const std::uint64_t high = rd();
  Seed(high << 32 | rd());
}

}  // namespace pixmosa

// The program's uniform random generator: xoshiro128+ (Blackman and Vigna 2018), seeded by splitmix64
// (Steele, Lea and Flood 2014). One instance belongs to the program; a seed makes a result repeatable.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

namespace pixmosa {

class Random {
 public:
  // Seeded from the system, differently each time.
  Random();
  explicit Random(std::uint64_t seed) { Seed(seed); }

  void Seed(std::uint64_t seed);
  void SeedFromSystem();

  // Uniform in 0..2^32-1.
  std::uint32_t Bits() {
    const std::uint32_t result = s_[0] + s_[3], t = s_[1] << 9;
    s_[2] ^= s_[0];
    s_[3] ^= s_[1];
    s_[1] ^= s_[2];
    s_[0] ^= s_[3];
    s_[2] ^= t;
    s_[3] = std::rotl(s_[3], 11);
    return result;
  }

  // Uniform in [0, 1), a multiple of 2^-24.
  float Next() { return (Bits() >> 8) * 0x1p-24F; }

 private:
  std::array<std::uint32_t, 4> s_{};
};

}  // namespace pixmosa

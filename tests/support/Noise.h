// Pictures of noise and their parts, for formulas written out pixel by pixel. Places count from 1.
#pragma once

#include <algorithm>

#include "platform/Pixel.h"
#include "platform/Random.h"
#include "tests/support/Effects.h"

namespace pixmosa::test {

// Widths that leave every kind of remainder, and pictures with little or no interior.
inline constexpr Extent kSizes[] = {{1, 1}, {1, 9}, {2, 3},  {3, 3},  {3, 60},
                                    {5, 5}, {6, 4}, {19, 7}, {37, 9}, {70, 6}};

// Runs of extremes between noise, so that clamping and ties occur.
inline Picture Noise(Extent size, std::uint64_t seed) {
  Picture p(size.width, size.height);
  Random random(seed);
  for (std::size_t i = 0; i < p.PixelCount(); ++i) {
    const std::uint32_t bits = random.Bits();
    p.Writable()[i] = bits % 5 == 0 ? 0x11FFFFFFU : bits % 7 == 0 ? 0x22000000U : bits;
  }
  return p;
}

// The part of every pixel that lies `shift` bits up: 0 blue, 8 green, 16 red.
struct Plane {
  const Picture& p;
  int shift;
  int operator()(int x, int y) const { return p.Row(y - 1)[x - 1] >> shift & 0xFF; }
};

inline void Put(Picture& p, int x, int y, int shift, int v) {
  std::uint32_t& pixel = p.Writable()[(y - 1) * p.Width() + x - 1];
  pixel = (pixel & ~(0xFFU << shift)) | std::uint32_t{ClampByte(v)} << shift;
}

// The sum of the eight neighbours.
inline int S8(const Plane& c, int x, int y) {
  int sum = -c(x, y);
  for (int j = -1; j <= 1; ++j)
    for (int i = -1; i <= 1; ++i) sum += c(x + i, y + j);
  return sum;
}

// (red + green + blue) \ 3, and its mean over the picture, cut off.
inline int Gray(const Picture& p, int x, int y) {
  return (Plane{p, 0}(x, y) + Plane{p, 8}(x, y) + Plane{p, 16}(x, y)) / 3;
}
inline int MeanGray(const Picture& p) {
  int sum = 0;
  for (int y = 1; y <= p.Height(); ++y)
    for (int x = 1; x <= p.Width(); ++x) sum += Gray(p, x, y);
  return sum / (p.Width() * p.Height());
}

inline bool Same(const Picture& a, const Picture& b) {
  return a.Size() == b.Size() && std::equal(a.Pixels(), a.Pixels() + a.PixelCount(), b.Pixels());
}

}  // namespace pixmosa::test

// Gray levels of pixels: (red + green + blue) \ 3.
#pragma once

#include <cstddef>
#include <cstdint>

#include "effects/PixelBuffers.h"
#include "platform/Pixel.h"

namespace pixmosa {

// s \ 3 for a sum of three parts: multiplied by a third of 2^16 rounded up, for want of a division of
// vectors.
constexpr std::int32_t Tercio(std::int32_t s) {
  return s * 21846 >> 16;
}
static_assert(ParaTodos(0, 3 * 255, [](int s) { return Tercio(s) == s / 3; }));

// The gray levels of n pixels.
void FilaDeGrises(const std::uint32_t* row, std::uint8_t* grays, std::size_t n);

// The sum of the gray levels divided by the number of pixels, truncated.
std::int32_t MediaDeGrises(const PixelBuffers& b);

}  // namespace pixmosa

// Gray levels of pixels: (red + green + blue) \ 3.
#pragma once

#include <cstddef>
#include <cstdint>

#include "effects/PixelBuffers.h"

namespace pixmosa {

// s \ 3 for s = 0..765, without a division.
constexpr std::uint32_t Tercio(std::uint32_t s) {
  return s * 21846U >> 16;
}

constexpr std::uint32_t SumaRGB(std::uint32_t p) {
  return (p & 0xFF) + (p >> 8 & 0xFF) + (p >> 16 & 0xFF);
}

// A gray level in the place of a pixel's three components.
constexpr std::uint32_t ConGris(std::uint32_t p, std::uint32_t gray) {
  return (p & 0xFF000000U) | gray * 0x010101U;
}

// The gray levels of n pixels.
void FilaDeGrises(const std::uint32_t* row, std::uint8_t* grays, std::size_t n);

// The sum of the gray levels divided by the number of pixels, truncated.
std::int32_t MediaDeGrises(const PixelBuffers& b);

}  // namespace pixmosa

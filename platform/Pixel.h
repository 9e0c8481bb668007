// The parts of a stored pixel: 32 bits with blue in the lowest byte, then green, red and a fourth one, which
// no effect changes.
#pragma once

#include <concepts>
#include <cstdint>
#include <cstdlib>

#include "platform/Colour.h"
#include "platform/Rounding.h"

namespace pixmosa {

// The three colour bytes of a pixel, all set: white without a fourth byte.
inline constexpr std::uint32_t kTresPartes = 0xFFFFFF;

// The parts as numbers 0..255, which formulas may subtract.
constexpr std::int32_t Azul(std::uint32_t p) {
  return p & 0xFF;
}
constexpr std::int32_t Verde(std::uint32_t p) {
  return p >> 8 & 0xFF;
}
constexpr std::int32_t Rojo(std::uint32_t p) {
  return p >> 16 & 0xFF;
}
constexpr std::int32_t SumaRGB(std::uint32_t p) {
  return Azul(p) + Verde(p) + Rojo(p);
}

// Three parts 0..255 in their places, the fourth byte 0.
constexpr std::uint32_t Unir(std::uint32_t blue, std::uint32_t green, std::uint32_t red) {
  return blue | green << 8 | red << 16;
}
constexpr std::uint32_t UnirGris(std::uint32_t gray) {
  return Unir(gray, gray, gray);
}

// The three parts of `colour` with the fourth byte of `p`.
constexpr std::uint32_t ConCuarto(std::uint32_t p, std::uint32_t colour) {
  return (p & ~kTresPartes) | (colour & kTresPartes);
}
constexpr std::uint32_t Opaco(std::uint32_t colour) {
  return ConCuarto(~0U, colour);
}

// v limited to 0..255. Of a 16-bit number it costs a vector half as much as of a 32-bit one.
template <std::signed_integral T>
constexpr std::uint8_t ClampByte(T v) {
  return v < 0 ? 0 : v > 255 ? 255 : v;
}

// The plain average of a colour's three parts, half to even; a pixel outside a picture (-1) is black.
inline int PixelGray(Colour c) {
  const int red = std::abs(c % 256), green = std::abs(c % 65536 / 256), blue = std::abs(c / 65536);
  return RoundHalfEven((red + green + blue) / 3.0);
}

}  // namespace pixmosa

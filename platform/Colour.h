// A colour as one number: red in the low byte, then green, then blue. -1 is the colour outside a picture.
#pragma once

#include <cstdint>

namespace pixmosa {

using Colour = std::int32_t;

inline constexpr Colour kNoColour = -1;
inline constexpr Colour kBlack = 0;
inline constexpr Colour kWhite = 0xFFFFFF;

constexpr Colour Rgb(int red, int green, int blue) {
  return red | green << 8 | blue << 16;
}

struct ColourParts {
  std::int32_t red, green, blue;
};

// The three parts of a colour made by Rgb. For a negative number red keeps its sign.
constexpr ColourParts SplitColour(Colour c) {
  return {c % 256, (c >> 8) & 255, (c >> 16) & 255};
}

// A stored pixel (bytes blue, green, red, fourth; little endian) as a colour number.
constexpr Colour ColourOfPixel(std::uint32_t p) {
  return (p >> 16 & 0xFF) | (p & 0xFF00) | (p & 0xFF) << 16;
}

// A colour number as a stored pixel with an opaque fourth byte.
constexpr std::uint32_t PixelOfColour(Colour c) {
  const std::uint32_t u = c;
  return 0xFF000000U | (u & 0xFF) << 16 | (u & 0xFF00) | (u >> 16 & 0xFF);
}

}  // namespace pixmosa

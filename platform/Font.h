// A font as the program knows it: face name and whole points. N points are N / 0.75 pixels, on any screen.
#pragma once

#include <string>

#include "platform/Rounding.h"

namespace pixmosa {

struct Font {
  std::string name = "Lucida Console";  // UTF-8
  int points = 6;
  bool operator==(const Font&) const = default;
};

inline int PixelHeight(const Font& font) {
  return RoundHalfEven(font.points / 0.75);
}

// The whole points of a height in pixels, the fraction dropped; the sign of the height does not count.
inline int PointsOfPixels(int pixels) {
  return Truncate((pixels < 0 ? -pixels : pixels) * 0.75);
}

}  // namespace pixmosa

// Linear light of what a picture stores.
#pragma once

#include <cmath>

namespace pixmosa {

// Light 0..1 of an sRGB part 0..255, which may lie between two whole ones (IEC 61966-2-1).
inline double LuzDeParte(double part) {
  const double v = part / 255;
  return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

}  // namespace pixmosa

// Light of the levels of sRGB (IEC 61966-2-1), and colours by how they are seen.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "platform/Colour.h"

namespace pixmosa {

// The levels 0..255 as whole parts of kLuzEntera.
inline constexpr std::uint32_t kLuzEntera = 1U << 24;
const std::array<std::uint32_t, 256>& TablaDeLuz();

// The level nearest to a light, counted in levels; `light` in parts of kLuzEntera.
int NivelDeLuz(double light);

// A colour in OKLab (Björn Ottosson, "A perceptual color space for image processing", 2020): distances in it
// are near to seen differences.
struct Oklab {
  double l, a, b;
};
Oklab OklabDe(Colour colour);

// Finds the seen nearest of some colours; the first of equals.
class MasParecido {
 public:
  explicit MasParecido(const std::vector<Colour>& colours);
  std::size_t De(Colour colour) const;

 private:
  std::vector<Oklab> colores_;
};

}  // namespace pixmosa

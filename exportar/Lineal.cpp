#include "exportar/Lineal.h"

#include <algorithm>
#include <cmath>

#include "platform/Luz.h"

namespace pixmosa {

const std::array<std::uint32_t, 256>& TablaDeLuz() {
  static const std::array<std::uint32_t, 256> table = [] {
    std::array<std::uint32_t, 256> t{};
    for (std::size_t i = 0; i < t.size(); ++i)
      t[i] = std::lrint(LuzDeParte(static_cast<double>(i)) * kLuzEntera);
    return t;
  }();
  return table;
}

int NivelDeLuz(double light) {
  // Where one level ends and the next begins.
  static const std::array<double, 255> borders = [] {
    std::array<double, 255> b{};
    for (std::size_t i = 0; i < b.size(); ++i) b[i] = LuzDeParte(static_cast<double>(i) + 0.5) * kLuzEntera;
    return b;
  }();
  return static_cast<int>(std::upper_bound(borders.begin(), borders.end(), light) - borders.begin());
}

Oklab OklabDe(Colour colour) {
  const ColourParts p = SplitColour(colour);
  const double r = LuzDeParte(p.red), g = LuzDeParte(p.green), b = LuzDeParte(p.blue);
  const double l = std::cbrt(0.4122214708 * r + 0.5363325363 * g + 0.0514459929 * b);
  const double m = std::cbrt(0.2119034982 * r + 0.6806995451 * g + 0.1073969566 * b);
  const double s = std::cbrt(0.0883024619 * r + 0.2817188376 * g + 0.6299787005 * b);
  return {0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s,
          1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s,
          0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s};
}

MasParecido::MasParecido(const std::vector<Colour>& colours) {
  for (const Colour c : colours) colores_.push_back(OklabDe(c));
}

std::size_t MasParecido::De(Colour colour) const {
  const Oklab c = OklabDe(colour);
  const auto distance = [&](const Oklab& o) {
    return (o.l - c.l) * (o.l - c.l) + (o.a - c.a) * (o.a - c.a) + (o.b - c.b) * (o.b - c.b);
  };
  return std::min_element(colores_.begin(), colores_.end(),
                          [&](const Oklab& x, const Oklab& y) { return distance(x) < distance(y); }) -
         colores_.begin();
}

}  // namespace pixmosa

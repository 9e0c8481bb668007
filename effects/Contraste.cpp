#include <array>

#include "effects/Efectos.h"
#include "effects/Grises.h"
#include "platform/Rounding.h"

namespace pixmosa {
namespace {

struct Componentes {
  std::int32_t b, g, r;
  bool EnRango() const { return ((b | g | r) & ~255) == 0; }
};

// Limits c to 0..255 and adds half of what was cut off to the other two.
void Repartir(std::int32_t& c, std::int32_t& one, std::int32_t& other) {
  const std::int32_t cut = c < 0 ? c : c > 255 ? c - 255 : 0;
  c -= cut;
  one += cut / 2;
  other += cut / 2;
}

Componentes Limitar(Componentes c) {
  while (!c.EnRango()) {
    if (c.b < 1 && c.g <= 0 && c.r <= 0) return {0, 0, 0};
    if (c.b >= 255 && c.g >= 255 && c.r >= 255) return {255, 255, 255};
    Repartir(c.b, c.r, c.g);
    Repartir(c.g, c.r, c.b);
    Repartir(c.r, c.g, c.b);
  }
  return c;
}

}  // namespace

void Contraste(PixelBuffers& b, std::int32_t a) {
  const std::int32_t mean = MediaDeGrises(b);
  const auto f = static_cast<float>((std::clamp(a, -100, 100) + 100) / 100.0);
  std::array<std::int32_t, 256> k{};
  for (int i = 0; i < 256; ++i) k[static_cast<std::size_t>(i)] = RoundHalfEven((i - mean) * double{f} + mean);
  b.Avance(5);
  const Tramo bar{5, 95};
  RecorrerFilas(
      b,
      [&](const std::uint32_t* s, std::uint32_t* d, int) {
        for (std::size_t x = 0; x < b.Columnas(); ++x) {
          const std::uint32_t p = s[x];
          Componentes c{k[p & 0xFF], k[p >> 8 & 0xFF], k[p >> 16 & 0xFF]};
          if (!c.EnRango()) c = Limitar(c);
          d[x] = (p & 0xFF000000U) | static_cast<std::uint32_t>(c.b | c.g << 8 | c.r << 16);
        }
      },
      bar);
}

}  // namespace pixmosa

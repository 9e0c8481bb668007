#include <array>
#include <cmath>

#include "effects/Efectos.h"
#include "effects/Grises.h"
#include "platform/Rounding.h"

namespace pixmosa {
namespace {

using TablaDeBytes = std::array<std::uint8_t, 256>;

// Each component through one table of 256 entries.
void PorTabla(PixelBuffers& b, const TablaDeBytes& table) {
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, int) {
    for (std::size_t x = 0; x < b.Columnas(); ++x) {
      const std::uint32_t p = s[x];
      d[x] = (p & 0xFF000000U) | table[p & 0xFF] | static_cast<std::uint32_t>(table[p >> 8 & 0xFF]) << 8 |
             static_cast<std::uint32_t>(table[p >> 16 & 0xFF]) << 16;
    }
  });
}

// d x s for d = -255..255 as 4 x its floor plus 1, 2 or 3: below, at or above the half. A component c to be
// added decides at the half, because the sum is rounded to even.
using TablaDeDistancias = std::array<std::int32_t, 511>;

TablaDeDistancias Distancias(float s) {
  TablaDeDistancias table{};
  for (int d = -255; d <= 255; ++d) {
    const double v = d * double{s};
    const std::int32_t whole = Floor(v);
    const double rest = v - whole;
    table[static_cast<std::size_t>(d + 255)] = 4 * whole + (rest < 0.5 ? 1 : rest > 0.5 ? 3 : 2);
  }
  return table;
}

std::uint32_t Saturada(const TablaDeDistancias& table, std::int32_t c, std::int32_t gray) {
  const std::int32_t v = 4 * c + table[static_cast<std::size_t>(c - gray + 255)];
  return static_cast<std::uint32_t>(ClampByte((v + 1 + (v >> 2 & 1)) >> 2));
}

}  // namespace

void Brillo(PixelBuffers& b, std::int32_t a) {
  const auto f = static_cast<float>((std::clamp(a, -100, 100) + 100) / 100.0);
  TablaDeBytes table{};
  for (int i = 0; i < 256; ++i)
    table[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(ClampByte(RoundHalfEven(i * double{f})));
  PorTabla(b, table);
}

void Saturacion(PixelBuffers& b, std::int32_t a) {
  const TablaDeDistancias table = Distancias(static_cast<float>(std::clamp(a, -100, 100) / 100.0));
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, int) {
    for (std::size_t x = 0; x < b.Columnas(); ++x) {
      const std::uint32_t p = s[x];
      const auto gray = static_cast<std::int32_t>(Tercio(SumaRGB(p)));
      const auto nueva = [&](unsigned shift) {
        return Saturada(table, static_cast<std::int32_t>(p >> shift & 0xFF), gray) << shift;
      };
      d[x] = (p & 0xFF000000U) | nueva(0) | nueva(8) | nueva(16);
    }
  });
}

void Gamma(PixelBuffers& b, std::int32_t a) {
  const double power = 1.0 / double{static_cast<float>(std::clamp(a, 1, 100))};
  TablaDeBytes table{};
  for (int i = 0; i < 256; ++i)
    table[static_cast<std::size_t>(i)] =
        static_cast<std::uint8_t>(RoundHalfEven(std::pow(i / 255.0, power) * 255.0));
  PorTabla(b, table);
}

}  // namespace pixmosa

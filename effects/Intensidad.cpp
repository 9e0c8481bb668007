#include <array>
#include <bit>
#include <cmath>
#include <vector>

#include "effects/Efectos.h"
#include "effects/Filas.h"
#include "effects/Grises.h"
#include "platform/Clones.h"

namespace pixmosa {
namespace {

// The new byte for each level of a part.
using TablaDeBytes = std::array<std::uint8_t, 256>;

// A formula of one part, rounded and limited.
template <typename Formula>
TablaDeBytes Tabular(Formula formula) {
  TablaDeBytes table{};
  for (int c = 0; c < 256; ++c) table[c] = ClampByte(RoundHalfEven(formula(c)));
  return table;
}

inline std::uint32_t PorTabla(std::uint32_t p, const TablaDeBytes& t) {
  return ConCuarto(p, Unir(t[Azul(p)], t[Verde(p)], t[Rojo(p)]));
}

// Every pixel through one table.
void RecorrerPorTabla(PixelBuffers& b, const TablaDeBytes& table) {
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, auto) {
    for (std::size_t x = 0; x < b.Columnas(); ++x) d[x] = PorTabla(s[x], table);
  });
}

// min(255, round(c x factor)), half to even: adding 3 x 2^22 leaves the whole number in the lowest bits.
PIXMOSA_CLONES
void FilaConBrillo(const std::uint8_t* __restrict s, std::uint8_t* __restrict d, std::size_t n,
                   float factor) {
  constexpr float kRedondeo = 12582912.0F;
  for (std::size_t i = 0; i < n; ++i) {
    const auto whole = static_cast<std::uint16_t>(std::bit_cast<std::uint32_t>(s[i] * factor + kRedondeo));
    d[i] = static_cast<std::uint8_t>(whole > 255 ? 255 : whole);
  }
}

}  // namespace

void Brillo(PixelBuffers& b, std::int32_t a) {
  const int percent = std::clamp(a, -100, 100) + 100;
  float factor = percent / 100.0;
  // Where the single-precision factor is not percent / 100, c x factor is no tie although c x percent / 100
  // may be one. One step further away it is none in single precision either.
  const double error = double{factor} * 100 - percent;
  if (error != 0) factor = std::nextafter(factor, error > 0 ? 3.0F : -1.0F);
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, auto) {
    FilaConBrillo(Octetos(s), Octetos(d), b.Bytes(), factor);
    RestaurarCuarto(s, d, b.Columnas());
  });
}

// One table for each gray level, 64 KiB that stay near the processor: a look-up takes less time than rounding
// three parts of every pixel.
void Saturacion(PixelBuffers& b, std::int32_t a) {
  const float factor = std::clamp(a, -100, 100) / 100.0;
  std::vector<TablaDeBytes> tables;
  for (int gray = 0; gray < 256; ++gray)
    tables.push_back(Tabular([=](int c) { return (c - gray) * double{factor} + c; }));
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, auto) {
    for (std::size_t x = 0; x < b.Columnas(); ++x) d[x] = PorTabla(s[x], tables[Tercio(SumaRGB(s[x]))]);
  });
}

void Gamma(PixelBuffers& b, std::int32_t a) {
  const float argument = std::clamp(a, 1, 100);
  const double power = 1.0 / double{argument};
  RecorrerPorTabla(b, Tabular([=](int c) { return std::pow(c / 255.0, power) * 255.0; }));
}

}  // namespace pixmosa

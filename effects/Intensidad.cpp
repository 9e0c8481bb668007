#include <array>
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

// t \ 100 for every t that a byte x 0..200 percent limited to 255 and a half can give, in 16-bit lanes: whole
// vectors of them pass in the time of one look-up.
constexpr std::uint16_t kTope = 25599;
constexpr std::uint16_t Centesima(std::uint16_t t) {
  const std::uint16_t quarter = t >> 2, high = quarter * 20972U >> 16;
  return high >> 3;
}
static_assert(ParaTodos(0, kTope, [](int t) { return Centesima(t) == t / 100; }));

// round(c x percent / 100), at most 255. `half` is 50, or 49 where a tie goes down.
PIXMOSA_CLONES
void FilaConBrillo(const std::uint8_t* __restrict s, std::uint8_t* __restrict d, std::size_t n,
                   std::uint16_t percent, std::uint16_t half) {
  for (std::size_t i = 0; i < n; ++i) {
    const std::uint16_t whole = s[i] * percent + half;
    d[i] = Centesima(whole > kTope ? kTope : whole);
  }
}

}  // namespace

void Brillo(PixelBuffers& b, std::int32_t a) {
  const int percent = std::clamp(a, -100, 100) + 100;
  // A tie is decided by the factor's single precision: it lies above or below percent / 100; where it is
  // equal to it, at the quarters, the tie goes to the even number.
  const double factor{static_cast<float>(percent / 100.0)}, error = factor * 100 - percent;
  if (error == 0) {
    RecorrerPorTabla(b, Tabular([=](int c) { return c * factor; }));
    return;
  }
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, auto) {
    FilaConBrillo(Octetos(s), Octetos(d), b.Bytes(), percent, error < 0 ? 49 : 50);
    RestaurarCuarto(s, d, b.Columnas());
  });
}

// One table for each gray level, 64 KiB that stay near the processor: a look-up takes less time than rounding
// three parts of every pixel.
void Saturacion(PixelBuffers& b, std::int32_t a) {
  const float factor = std::clamp(a, -100, 100) / 100.0;
  std::vector<TablaDeBytes> tables(256);
  for (int gray = 0; gray < 256; ++gray)
    tables[gray] = Tabular([=](int c) { return (c - gray) * double{factor} + c; });
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

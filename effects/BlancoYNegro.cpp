#include <array>
#include <vector>

#include "effects/Efectos.h"
#include "effects/Filas.h"
#include "effects/Grises.h"
#include "platform/Clones.h"
#include "platform/Colour.h"
#include "platform/Rounding.h"

namespace pixmosa {
namespace {

constexpr std::uint32_t BlancoONegro(std::uint32_t p, bool white) {
  return (p & 0xFF000000U) | (white ? 0xFFFFFFU : 0U);
}

PIXMOSA_CLONES
void FilaUmbral(const std::uint32_t* __restrict s, std::uint32_t* __restrict d, std::size_t n,
                std::int32_t tr, std::int32_t tg, std::int32_t tb) {
  for (std::size_t x = 0; x < n; ++x) {
    const std::uint32_t p = s[x];
    const auto r = static_cast<std::int32_t>(p >> 16 & 0xFF), g = static_cast<std::int32_t>(p >> 8 & 0xFF),
               b = static_cast<std::int32_t>(p & 0xFF);
    d[x] = BlancoONegro(p, !((r < tr) & (g < tg) & (b < tb)));
  }
}

// Gray level \ 16 + 1 >= M is R + G + B >= 48 (M - 1).
PIXMOSA_CLONES
void FilaTramada(const std::uint32_t* __restrict s, std::uint32_t* __restrict d, std::size_t n,
                 const std::uint32_t* __restrict least) {
  for (std::size_t x = 0; x < n; ++x) d[x] = BlancoONegro(s[x], SumaRGB(s[x]) >= least[x]);
}

constexpr std::array<std::array<std::uint32_t, 4>, 4> kMatriz = {
    {{1, 13, 4, 16}, {9, 5, 12, 8}, {3, 15, 2, 14}, {11, 7, 10, 6}}};

// clamp((10 c - S8) \ 2) of bytes 4..n+3, their column sums given.
PIXMOSA_CLONES
void FilaNitida(const std::uint8_t* __restrict s, const std::int16_t* __restrict v,
                std::uint8_t* __restrict out, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const auto k = static_cast<std::int16_t>(11 * s[i + 4] - v[i] - v[i + 4] - v[i + 8]);
    const auto half = static_cast<std::int16_t>(k < 0 ? 0 : k >> 1);
    out[i] = static_cast<std::uint8_t>(half > 255 ? 255 : half);
  }
}

// The carried error and the output for every level plus error: both lie in -64..318.
struct Arrastre {
  static constexpr std::int32_t kDesde = -64;
  std::array<std::int8_t, 384> error{};
  std::array<std::uint32_t, 384> salida{};

  explicit Arrastre(std::int32_t mean) {
    for (std::size_t i = 0; i < error.size(); ++i) {
      const std::int32_t g = ClampByte(static_cast<std::int32_t>(i) + kDesde), out = g < mean ? 0 : 255;
      error[i] = static_cast<std::int8_t>((g - out) / 4);
      salida[i] = out ? 0xFFFFFFU : 0U;
    }
  }
};

}  // namespace

void Metodo1(PixelBuffers& b, std::int32_t colour) {
  const ColourParts t = SplitColour(colour);
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, int) {
    FilaUmbral(s, d, b.Columnas(), t.red, t.green, t.blue);
  });
}

void Metodo2(PixelBuffers& b, std::int32_t) {
  const Arrastre carry(MediaDeGrises(b));
  std::vector<std::int16_t> sums(b.Bytes());
  std::vector<std::uint32_t> sharp(b.Columnas());
  std::vector<std::uint8_t> grays(b.Columnas());
  std::int32_t e = 0;
  const Tramo bar{5, 95};
  RecorrerFilas(
      b,
      [&](const std::uint32_t* s, std::uint32_t* d, int y) {
        std::copy_n(s, b.Columnas(), sharp.data());
        if (y > 1 && y < b.H && b.W > 2) {
          SumarColumnas(b, y, sums);
          FilaNitida(Octetos(s), sums.data(), Octetos(sharp.data() + 1), b.Bytes() - 8);
        }
        FilaDeGrises(sharp.data(), grays.data(), b.Columnas());
        for (std::size_t x = 0; x < b.Columnas(); ++x) {
          const auto i = static_cast<std::size_t>(grays[x] + e - Arrastre::kDesde);
          d[x] = (s[x] & 0xFF000000U) | carry.salida[i];
          e = carry.error[i];
        }
      },
      bar);
}

void Metodo3(PixelBuffers& b, std::int32_t) {
  std::array<std::vector<std::uint32_t>, 4> least;
  for (std::size_t j = 0; j < 4; ++j)
    for (std::size_t x = 0; x < b.Columnas(); ++x) least[j].push_back(48 * (kMatriz[j][x % 4] - 1));
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, int y) {
    FilaTramada(s, d, b.Columnas(), least[static_cast<std::size_t>(y - 1) % 4].data());
  });
}

}  // namespace pixmosa

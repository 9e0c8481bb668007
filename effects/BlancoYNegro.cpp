#include <array>
#include <vector>

#include "effects/Efectos.h"
#include "effects/Filas.h"
#include "effects/Grises.h"
#include "platform/Clones.h"

namespace pixmosa {
namespace {

constexpr std::uint32_t BlancoONegro(std::uint32_t p, bool white) {
  return ConCuarto(p, white ? kTresPartes : 0U);
}

PIXMOSA_CLONES
void FilaUmbral(const std::uint32_t* __restrict s, std::uint32_t* __restrict d, std::size_t n,
                std::int32_t tr, std::int32_t tg, std::int32_t tb) {
  for (std::size_t x = 0; x < n; ++x) {
    const std::uint32_t p = s[x];
    // Whole numbers, and no branch: a row passes as vectors.
    const int red = Rojo(p) < tr, green = Verde(p) < tg, blue = Azul(p) < tb;
    d[x] = BlancoONegro(p, (red & green & blue) == 0);
  }
}

// Gray level \ 16 + 1 >= M is R + G + B >= 48 (M - 1), which needs no division.
constexpr std::int32_t SumaMinima(std::int32_t m) {
  return 48 * (m - 1);
}
static_assert(ParaTodos(1, 16, [](int m) {
  return ParaTodos(0, 3 * 255, [=](int sum) { return (sum / 3 / 16 + 1 >= m) == (sum >= SumaMinima(m)); });
}));

PIXMOSA_CLONES
void FilaTramada(const std::uint32_t* __restrict s, std::uint32_t* __restrict d, std::size_t n,
                 const std::int32_t* __restrict least) {
  for (std::size_t x = 0; x < n; ++x) d[x] = BlancoONegro(s[x], SumaRGB(s[x]) >= least[x]);
}

constexpr std::array<std::array<std::int32_t, 4>, 4> kMatriz = {
    {{1, 13, 4, 16}, {9, 5, 12, 8}, {3, 15, 2, 14}, {11, 7, 10, 6}}};

// clamp((10 c - S8) \ 2) of bytes 4..n+3, their column sums given. In 16 bits: 11 x 255 is the most.
PIXMOSA_CLONES
void FilaNitida(const std::uint8_t* __restrict s, const std::int16_t* __restrict v,
                std::uint8_t* __restrict out, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const std::int16_t k = 11 * s[i + 4] - v[i] - v[i + 4] - v[i + 8];
    const std::int16_t half = k / 2;
    out[i] = ClampByte(half);
  }
}

// The carried error, -63..63, and the output for every level plus error, -63..318.
struct Arrastre {
  static constexpr std::int32_t kDesde = -64, kEntradas = 384;
  std::array<std::int8_t, kEntradas> error{};
  std::array<std::uint32_t, kEntradas> salida{};

  explicit Arrastre(std::int32_t mean) {
    for (std::int32_t i = 0; i < kEntradas; ++i) {
      const std::int32_t g = ClampByte(i + kDesde), out = g < mean ? 0 : 255;
      error[i] = (g - out) / 4;
      salida[i] = UnirGris(out);
    }
  }
};

}  // namespace

void Metodo1(PixelBuffers& b, std::int32_t colour) {
  const ColourParts t = SplitColour(colour);
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, auto) {
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
      [&](const std::uint32_t* s, std::uint32_t* d, std::ptrdiff_t y) {
        std::copy_n(s, b.Columnas(), sharp.data());
        if (y > 1 && y < b.H && b.W > 2) {
          SumarTresFilas(Octetos(s - b.W), Octetos(s), Octetos(s + b.W), sums.data(), b.Bytes());
          FilaNitida(Octetos(s), sums.data(), Octetos(sharp.data() + 1), b.Bytes() - 8);
        }
        FilaDeGrises(sharp.data(), grays.data(), b.Columnas());
        for (std::size_t x = 0; x < b.Columnas(); ++x) {
          const std::int32_t i = grays[x] + e - Arrastre::kDesde;
          d[x] = ConCuarto(s[x], carry.salida[i]);
          e = carry.error[i];
        }
      },
      bar);
}

void Metodo3(PixelBuffers& b, std::int32_t) {
  std::array<std::vector<std::int32_t>, 4> least;
  for (std::size_t j = 0; j < 4; ++j)
    for (std::size_t x = 0; x < b.Columnas(); ++x) least[j].push_back(SumaMinima(kMatriz[j][x % 4]));
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, std::ptrdiff_t y) {
    FilaTramada(s, d, b.Columnas(), least[(y - 1) % 4].data());
  });
}

}  // namespace pixmosa

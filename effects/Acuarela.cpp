#include <array>
#include <vector>

#include "effects/Efectos.h"
#include "effects/Filas.h"
#include "platform/Clones.h"
#include "platform/Rounding.h"

namespace pixmosa {
namespace {

// The 3 x 3 blocks centred on one row: mean and spread of each, by byte. The four blocks that have a pixel at
// a corner are those centred on its diagonal neighbours, so each block is measured once.
struct FilaDeBloques {
  std::vector<std::uint8_t> media;
  std::vector<std::uint16_t> dispersion;
};

// sum \ 9 for a sum of nine bytes, in 16 bits: multiplied by a ninth of 2^16 rounded up, of which a vector
// takes the upper half at once.
constexpr std::uint8_t Noveno(std::uint16_t sum) {
  return sum * 7282U >> 16;
}
static_assert(ParaTodos(0, 9 * 255, [](int sum) { return Noveno(sum) == sum / 9; }));

// v holds column sums, starting one pixel to the left of the first centre.
PIXMOSA_CLONES
void MedirMedias(const std::int16_t* __restrict v, std::uint8_t* __restrict mean, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) mean[i] = Noveno(v[i] + v[i + 4] + v[i + 8]);
}

inline std::uint8_t Distancia(std::uint8_t v, std::uint8_t mean) {
  const std::uint8_t high = v > mean ? v : mean, low = v > mean ? mean : v;
  return high - low;
}

// The sum of absolute differences from the mean; the rows start one pixel to the left of the first centre.
PIXMOSA_CLONES
void MedirDispersiones(const std::uint8_t* __restrict up, const std::uint8_t* __restrict s,
                       const std::uint8_t* __restrict down, const std::uint8_t* __restrict mean,
                       std::uint16_t* __restrict spread, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const std::uint8_t m = mean[i];
    spread[i] = Distancia(up[i], m) + Distancia(up[i + 4], m) + Distancia(up[i + 8], m) + Distancia(s[i], m) +
                Distancia(s[i + 4], m) + Distancia(s[i + 8], m) + Distancia(down[i], m) +
                Distancia(down[i + 4], m) + Distancia(down[i + 8], m);
  }
}

struct Elegido {
  std::uint16_t media, dispersion;
};

// The other block where its spread is strictly smaller.
inline Elegido Mejor(Elegido best, Elegido other) {
  const bool less = other.dispersion < best.dispersion;
  return {less ? other.media : best.media, less ? other.dispersion : best.dispersion};
}

// Of the blocks above left, above right, below left, below right the one of least spread, the first on a tie.
PIXMOSA_CLONES
void ElegirBloques(const std::uint8_t* __restrict meanUp, const std::uint16_t* __restrict spreadUp,
                   const std::uint8_t* __restrict meanDown, const std::uint16_t* __restrict spreadDown,
                   std::uint8_t* __restrict d, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    Elegido best = Mejor({meanUp[i], spreadUp[i]}, {meanUp[i + 8], spreadUp[i + 8]});
    best = Mejor(best, {meanDown[i], spreadDown[i]});
    d[i] = Mejor(best, {meanDown[i + 8], spreadDown[i + 8]}).media;
  }
}

}  // namespace

void Acuarela(PixelBuffers& b, std::int32_t) {
  std::array<FilaDeBloques, 3> blocks;
  blocks.fill({std::vector<std::uint8_t>(b.Bytes()), std::vector<std::uint16_t>(b.Bytes())});
  std::vector<std::int16_t> sums(b.Bytes());
  std::ptrdiff_t measured = 1;
  RecorrerInterior(b, 2, [&](std::ptrdiff_t y) {
    while (measured < y + 1) {
      const std::ptrdiff_t centre = ++measured;
      const std::uint8_t *up = Octetos(b.Origen(centre - 1)), *s = Octetos(b.Origen(centre)),
                         *down = Octetos(b.Origen(centre + 1));
      FilaDeBloques& row = blocks[centre % 3];
      SumarTresFilas(up, s, down, sums.data(), b.Bytes());
      MedirMedias(sums.data(), row.media.data(), b.Bytes() - 8);
      MedirDispersiones(up, s, down, row.media.data(), row.dispersion.data(), b.Bytes() - 8);
    }
    const FilaDeBloques &up = blocks[(y - 1) % 3], &down = blocks[(y + 1) % 3];
    const std::size_t n = b.Columnas() - 4;
    ElegirBloques(up.media.data(), up.dispersion.data(), down.media.data(), down.dispersion.data(),
                  Octetos(b.Destino(y) + 2), 4 * n);
    RestaurarCuarto(b.Origen(y) + 2, b.Destino(y) + 2, n);
  });
}

}  // namespace pixmosa

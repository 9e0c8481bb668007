#include <array>
#include <vector>

#include "effects/Efectos.h"
#include "effects/Filas.h"
#include "platform/Clones.h"

namespace pixmosa {
namespace {

// The 3 x 3 blocks centred on one row: mean and spread of each, by byte. The four blocks that have a pixel at
// a corner are those centred on its diagonal neighbours, so each block is measured once.
struct FilaDeBloques {
  std::vector<std::uint8_t> media;
  std::vector<std::uint16_t> dispersion;
};

// sum \ 9 for the sum of nine bytes; v holds column sums, starting one pixel to the left of the first centre.
PIXMOSA_CLONES
void MedirMedias(const std::int16_t* __restrict v, std::uint8_t* __restrict mean, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const auto sum = static_cast<std::uint16_t>(v[i] + v[i + 4] + v[i + 8]);
    mean[i] = static_cast<std::uint8_t>(sum * 7282U >> 16);
  }
}

inline std::uint8_t Distancia(std::uint8_t v, std::uint8_t mean) {
  const std::uint8_t high = v > mean ? v : mean, low = v > mean ? mean : v;
  return static_cast<std::uint8_t>(high - low);
}

// The sum of absolute differences from the mean; the rows start one pixel to the left of the first centre.
PIXMOSA_CLONES
void MedirDispersiones(const std::uint8_t* __restrict up, const std::uint8_t* __restrict s,
                       const std::uint8_t* __restrict down, const std::uint8_t* __restrict mean,
                       std::uint16_t* __restrict spread, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const std::uint8_t m = mean[i];
    spread[i] = static_cast<std::uint16_t>(
        Distancia(up[i], m) + Distancia(up[i + 4], m) + Distancia(up[i + 8], m) + Distancia(s[i], m) +
        Distancia(s[i + 4], m) + Distancia(s[i + 8], m) + Distancia(down[i], m) + Distancia(down[i + 4], m) +
        Distancia(down[i + 8], m));
  }
}

struct Elegido {
  std::uint16_t media, dispersion;
};

// The other block where its spread is strictly smaller.
inline Elegido Mejor(Elegido best, Elegido other) {
  const auto mask = static_cast<std::uint16_t>(-static_cast<int>(other.dispersion < best.dispersion));
  return {static_cast<std::uint16_t>((other.media & mask) | (best.media & ~mask)),
          other.dispersion < best.dispersion ? other.dispersion : best.dispersion};
}

// Of the blocks above left, above right, below left, below right the one of least spread, the first on a tie.
PIXMOSA_CLONES
void ElegirBloques(const std::uint8_t* __restrict meanUp, const std::uint16_t* __restrict spreadUp,
                   const std::uint8_t* __restrict meanDown, const std::uint16_t* __restrict spreadDown,
                   std::uint8_t* __restrict d, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    Elegido best = Mejor({meanUp[i], spreadUp[i]}, {meanUp[i + 8], spreadUp[i + 8]});
    best = Mejor(best, {meanDown[i], spreadDown[i]});
    d[i] = static_cast<std::uint8_t>(Mejor(best, {meanDown[i + 8], spreadDown[i + 8]}).media);
  }
}

}  // namespace

void Acuarela(PixelBuffers& b, std::int32_t) {
  std::array<FilaDeBloques, 3> blocks;
  blocks.fill({std::vector<std::uint8_t>(b.Bytes()), std::vector<std::uint16_t>(b.Bytes())});
  std::vector<std::int16_t> sums(b.Bytes());
  int measured = 1;
  RecorrerInterior(b, 2, [&](int y) {
    for (; measured < y + 1; ++measured) {
      const int centre = measured + 1;
      SumarColumnas(b, centre, sums);
      FilaDeBloques& row = blocks[static_cast<std::size_t>(centre) % 3];
      MedirMedias(sums.data(), row.media.data(), b.Bytes() - 8);
      MedirDispersiones(Octetos(b.Fuente(centre - 1)), Octetos(b.Fuente(centre)),
                        Octetos(b.Fuente(centre + 1)), row.media.data(), row.dispersion.data(),
                        b.Bytes() - 8);
    }
    const FilaDeBloques &up = blocks[static_cast<std::size_t>(y - 1) % 3],
                        &down = blocks[static_cast<std::size_t>(y + 1) % 3];
    const std::size_t n = b.Columnas() - 4;
    ElegirBloques(up.media.data(), up.dispersion.data(), down.media.data(), down.dispersion.data(),
                  Octetos(b.Destino(y) + 2), 4 * n);
    RestaurarCuarto(b.Fuente(y) + 2, b.Destino(y) + 2, n);
  });
}

}  // namespace pixmosa

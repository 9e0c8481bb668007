#include "effects/Filas.h"

#include "platform/Clones.h"

namespace pixmosa {

PIXMOSA_CLONES
void SumarTresFilas(const std::uint8_t* __restrict a, const std::uint8_t* __restrict b,
                    const std::uint8_t* __restrict c, std::int16_t* __restrict out, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) out[i] = static_cast<std::int16_t>(a[i] + b[i] + c[i]);
}

PIXMOSA_CLONES
void RestaurarCuarto(const std::uint32_t* __restrict source, std::uint32_t* __restrict row, std::size_t n) {
  for (std::size_t x = 0; x < n; ++x) row[x] = (row[x] & 0xFFFFFFU) | (source[x] & 0xFF000000U);
}

void SumarColumnas(const PixelBuffers& b, int y, std::vector<std::int16_t>& sums) {
  SumarTresFilas(Octetos(b.Fuente(y - 1)), Octetos(b.Fuente(y)), Octetos(b.Fuente(y + 1)), sums.data(),
                 b.Bytes());
}

}  // namespace pixmosa

#include "effects/Filas.h"

#include "platform/Clones.h"
#include "platform/Pixel.h"

namespace pixmosa {

PIXMOSA_CLONES
void SumarTresFilas(const std::uint8_t* __restrict a, const std::uint8_t* __restrict b,
                    const std::uint8_t* __restrict c, std::int16_t* __restrict out, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) out[i] = a[i] + b[i] + c[i];
}

PIXMOSA_CLONES
void RestaurarCuarto(const std::uint32_t* __restrict source, std::uint32_t* __restrict row, std::size_t n) {
  for (std::size_t x = 0; x < n; ++x) row[x] = ConCuarto(source[x], row[x]);
}

}  // namespace pixmosa

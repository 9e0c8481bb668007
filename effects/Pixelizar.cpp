#include <vector>

#include "effects/Efectos.h"
#include "effects/Filas.h"
#include "platform/Clones.h"
#include "platform/Pixel.h"

namespace pixmosa {
namespace {

constexpr int kLadoMayor = 20;
static_assert(kLadoMayor * 255 <= UINT16_MAX);  // the sum of a column's rows

PIXMOSA_CLONES
void AñadirFila(const std::uint8_t* __restrict s, std::uint16_t* __restrict sums, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) sums[i] += s[i];
}

// sums \ count of up to 20 columns as a pixel without its fourth byte.
std::uint32_t MediaDeBloque(const std::uint16_t* sums, std::size_t columns, std::size_t rows) {
  std::uint32_t b = 0, g = 0, r = 0;
  for (std::size_t x = 0; x < columns; ++x) {
    b += sums[4 * x];
    g += sums[4 * x + 1];
    r += sums[4 * x + 2];
  }
  const std::uint32_t count = columns * rows;
  return Unir(b / count, g / count, r / count);
}

}  // namespace

void Pixelizar(PixelBuffers& b, std::int32_t argument) {
  const std::ptrdiff_t n = std::clamp(argument, 1, kLadoMayor);
  std::vector<std::uint16_t> sums(b.Bytes());
  std::vector<std::uint32_t> means(b.Columnas());
  const auto measure = [&](std::ptrdiff_t y) {
    const std::ptrdiff_t rows = std::min(n, b.H - y + 1);
    std::fill(sums.begin(), sums.end(), std::uint16_t{0});
    for (std::ptrdiff_t i = 0; i < rows; ++i) AñadirFila(Octetos(b.Origen(y + i)), sums.data(), b.Bytes());
    for (std::ptrdiff_t x = 0; x < b.W; x += n) {
      const std::ptrdiff_t columns = std::min(n, b.W - x);
      std::fill_n(means.data() + x, columns, MediaDeBloque(sums.data() + 4 * x, columns, rows));
    }
  };
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, std::ptrdiff_t y) {
    if ((y - 1) % n == 0) measure(y);
    std::copy_n(means.data(), b.Columnas(), d);
    RestaurarCuarto(s, d, b.Columnas());
  });
}

}  // namespace pixmosa

#include <vector>

#include "effects/Efectos.h"
#include "effects/Filas.h"
#include "platform/Clones.h"

namespace pixmosa {
namespace {

PIXMOSA_CLONES
void AñadirFila(const std::uint8_t* __restrict s, std::uint16_t* __restrict sums, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) sums[i] = static_cast<std::uint16_t>(sums[i] + s[i]);
}

// sums \ count of n <= 20 columns as a pixel without its fourth byte.
std::uint32_t MediaDeBloque(const std::uint16_t* sums, std::size_t columns, std::uint32_t rows) {
  std::uint32_t b = 0, g = 0, r = 0;
  for (std::size_t x = 0; x < columns; ++x) {
    b += sums[4 * x];
    g += sums[4 * x + 1];
    r += sums[4 * x + 2];
  }
  const auto count = static_cast<std::uint32_t>(columns) * rows;
  return b / count | g / count << 8 | r / count << 16;
}

}  // namespace

void Pixelizar(PixelBuffers& b, std::int32_t argument) {
  const int n = std::clamp(argument, 1, 20);
  const auto side = static_cast<std::size_t>(n);
  std::vector<std::uint16_t> sums(b.Bytes());
  std::vector<std::uint32_t> means(b.Columnas());
  const auto measure = [&](int y) {
    const int rows = std::min(n, b.H - y + 1);
    std::fill(sums.begin(), sums.end(), std::uint16_t{0});
    for (int i = 0; i < rows; ++i) AñadirFila(Octetos(b.Fuente(y + i)), sums.data(), b.Bytes());
    for (std::size_t x = 0; x < b.Columnas(); x += side) {
      const std::size_t columns = std::min(side, b.Columnas() - x);
      std::fill_n(means.data() + x, columns,
                  MediaDeBloque(sums.data() + 4 * x, columns, static_cast<std::uint32_t>(rows)));
    }
  };
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, int y) {
    if ((y - 1) % n == 0) measure(y);
    std::copy_n(means.data(), b.Columnas(), d);
    RestaurarCuarto(s, d, b.Columnas());
  });
}

}  // namespace pixmosa

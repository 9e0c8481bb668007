#include "exportar/Colorear.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "exportar/Lineal.h"
#include "platform/Pixel.h"
#include "platform/Reparto.h"

namespace pixmosa {
namespace {

using Luz = std::array<std::uint64_t, 3>;  // red, green, blue

// The light of one row of pixels in each part, every pixel by its share.
void SumarFila(std::span<const std::uint32_t> pixels, const Reparto& across, std::vector<Luz>& sums) {
  const std::array<std::uint32_t, 256>& light = TablaDeLuz();
  const auto take = [&](Luz& sum, int x, std::uint64_t weight) {
    sum[0] += weight * light[Rojo(pixels[x])];
    sum[1] += weight * light[Verde(pixels[x])];
    sum[2] += weight * light[Azul(pixels[x])];
  };
  for (std::size_t i = 0; i < sums.size(); ++i) {
    const Reparto::Parte& part = across.partes[i];
    Luz sum{};
    for (int x = part.first; x <= part.last; ++x) take(sum, x, 1);
    for (std::uint64_t& s : sum) s *= across.entero;
    // What lies outside of the part is taken off again; unsigned numbers come back to where they belong.
    take(sum, part.first, -static_cast<std::uint64_t>(part.antes));
    take(sum, part.last, -static_cast<std::uint64_t>(part.despues));
    sums[i] = sum;
  }
}

}  // namespace

Picture MediasDeCeldas(const Picture& picture, Extent cells) {
  const Reparto across(picture.Width(), cells.width), down(picture.Height(), cells.height);
  const auto area = static_cast<double>(picture.PixelCount());
  Picture means(cells.width, cells.height);
  std::uint32_t* to = means.Writable();
  std::vector<Luz> row(cells.width), sums(cells.width);
  int read = -1;  // the row of pixels that `row` holds: two parts may share one
  for (const Reparto::Parte& part : down.partes) {
    std::fill(sums.begin(), sums.end(), Luz{});
    for (int y = part.first; y <= part.last; ++y) {
      if (y != read) SumarFila(picture.Row(read = y), across, row);
      const std::uint64_t weight =
          down.entero - (y == part.first ? part.antes : 0) - (y == part.last ? part.despues : 0);
      for (std::size_t i = 0; i < sums.size(); ++i)
        for (std::size_t k = 0; k < 3; ++k) sums[i][k] += weight * row[i][k];
    }
    // Every sum is below 2^24 times the number of pixels, and whole: nothing is lost on the way.
    const auto level = [&](std::uint64_t sum) { return NivelDeLuz(static_cast<double>(sum) / area); };
    for (const Luz& sum : sums) *to++ = Opaco(Unir(level(sum[2]), level(sum[1]), level(sum[0])));
  }
  return means;
}

void Colorear(Dibujo& drawing, const Picture& means, std::span<const int> rows) {
  for (std::size_t r = 0; r < drawing.filas.size(); ++r) {
    const int y = r < rows.size() ? rows[r] : static_cast<int>(r);
    if (y < 0 || y >= means.Height()) continue;
    const auto pixels = means.Row(y);
    Fila& row = drawing.filas[r];
    for (std::size_t x = 0; x < std::min(row.size(), pixels.size()); ++x)
      row[x].tinta = ColourOfPixel(pixels[x]);
  }
}

}  // namespace pixmosa

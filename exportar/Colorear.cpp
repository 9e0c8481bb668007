#include "exportar/Colorear.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "exportar/Lineal.h"
#include "platform/Pixel.h"

namespace pixmosa {
namespace {

using Luz = std::array<std::uint64_t, 3>;  // red, green, blue

// The pixels of a box along one side, in parts of 1/boxes of a pixel: those between the first and the last
// one count `boxes` each. All weights together are the number of pixels of the side.
struct Caja {
  int primero, ultimo;
  std::uint64_t pesoPrimero, pesoUltimo;
};

std::vector<Caja> Cajas(std::int64_t pixels, std::int64_t boxes) {
  std::vector<Caja> all(boxes);
  for (std::int64_t i = 0; i < boxes; ++i) {
    const std::int64_t from = i * pixels, to = from + pixels;
    const std::int64_t first = from / boxes, last = (to - 1) / boxes;
    all[i] = {static_cast<int>(first), static_cast<int>(last),
              static_cast<std::uint64_t>(std::min(to, (first + 1) * boxes) - from),
              static_cast<std::uint64_t>(first == last ? 0 : to - last * boxes)};
  }
  return all;
}

void Sumar(Luz& to, std::uint32_t pixel, std::uint64_t weight, const std::array<std::uint32_t, 256>& light) {
  to[0] += weight * light[Rojo(pixel)];
  to[1] += weight * light[Verde(pixel)];
  to[2] += weight * light[Azul(pixel)];
}

// The light of one row of pixels in each box.
void SumarFila(std::span<const std::uint32_t> pixels, const std::vector<Caja>& boxes,
               std::vector<Luz>& sums) {
  const std::array<std::uint32_t, 256>& light = TablaDeLuz();
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    const Caja& box = boxes[i];
    std::uint64_t red = 0, green = 0, blue = 0;
    for (int x = box.primero + 1; x < box.ultimo; ++x) {
      red += light[Rojo(pixels[x])];
      green += light[Verde(pixels[x])];
      blue += light[Azul(pixels[x])];
    }
    sums[i] = {red * boxes.size(), green * boxes.size(), blue * boxes.size()};
    Sumar(sums[i], pixels[box.primero], box.pesoPrimero, light);
    Sumar(sums[i], pixels[box.ultimo], box.pesoUltimo, light);
  }
}

}  // namespace

Picture MediasDeCeldas(const Picture& picture, Extent cells) {
  const std::vector<Caja> across = Cajas(picture.Width(), cells.width),
                          down = Cajas(picture.Height(), cells.height);
  const auto area = static_cast<double>(picture.PixelCount());
  Picture means(cells.width, cells.height);
  std::uint32_t* to = means.Writable();
  std::vector<Luz> row(across.size()), sums(across.size());
  int read = -1;  // the row of pixels that `row` holds: two boxes may share one
  for (const Caja& box : down) {
    std::fill(sums.begin(), sums.end(), Luz{});
    for (int y = box.primero; y <= box.ultimo; ++y) {
      if (y != read) SumarFila(picture.Row(read = y), across, row);
      const std::uint64_t weight = y == box.primero  ? box.pesoPrimero
                                   : y == box.ultimo ? box.pesoUltimo
                                                     : down.size();
      for (std::size_t i = 0; i < sums.size(); ++i)
        for (std::size_t part = 0; part < 3; ++part) sums[i][part] += weight * row[i][part];
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

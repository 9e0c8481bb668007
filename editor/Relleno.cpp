#include "editor/Relleno.h"

#include <algorithm>
#include <cstdint>

namespace pixmosa {

std::vector<TramoDeFila> RegionDe(const Lienzo& canvas, Cell start) {
  if (!canvas.Tiene(start)) return {};
  const int last = canvas.Columnas(), lastRow = canvas.Filas() + 1;
  const char32_t target = canvas.Caracter(start);
  const auto across = static_cast<std::size_t>(last + 1);
  std::vector<std::uint8_t> taken(across * static_cast<std::size_t>(lastRow + 1));
  const auto isFree = [&](int column, int row) {
    return taken[static_cast<std::size_t>(row) * across + static_cast<std::size_t>(column)] == 0 &&
           canvas.Caracter({column, row}) == target;
  };
  std::vector<TramoDeFila> region;
  std::vector<Cell> seeds{start};
  while (!seeds.empty()) {
    const Cell seed = seeds.back();
    seeds.pop_back();
    if (!isFree(seed.column, seed.row)) continue;
    int from = seed.column, to = seed.column;
    while (from > 0 && isFree(from - 1, seed.row)) --from;
    while (to < last && isFree(to + 1, seed.row)) ++to;
    std::fill_n(
        taken.begin() + static_cast<std::ptrdiff_t>(static_cast<std::size_t>(seed.row) * across) + from,
        to - from + 1, std::uint8_t{1});
    region.push_back({seed.row, from, to});
    for (const int row : {seed.row - 1, seed.row + 1}) {
      if (row < 0 || row > lastRow) continue;
      bool before = false;
      for (int column = from; column <= to; ++column) {
        const bool open = isFree(column, row);
        if (open && !before) seeds.push_back({column, row});
        before = open;
      }
    }
  }
  if (region.size() == 1 && region[0].desde == region[0].hasta) return {};
  return region;
}

void FloodFill(BasEditor& editor, Cell start) {
  const Pincel& brush = editor.CurrentChar;
  Lienzo& grid = editor.Grid;
  if (!grid.Tiene(start)) return;
  const char32_t target = grid.Caracter(start);
  if (target == brush.caracter && !brush.soloTinta && brush.tinta == grid.Tinta(start)) return;
  const char32_t with = brush.soloTinta ? target : brush.caracter;
  for (const TramoDeFila& t : RegionDe(grid, start))
    if (t.row <= grid.Filas()) grid.PonerTramo({t.desde, t.row}, t.hasta - t.desde + 1, {with, brush.tinta});
}

}  // namespace pixmosa

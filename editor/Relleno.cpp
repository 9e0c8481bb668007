#include "editor/Relleno.h"

#include <algorithm>
#include <cstdint>

namespace pixmosa {

std::vector<TramoDeFila> RegionDe(const Lienzo& canvas, Cell start) {
  if (!canvas.Tiene(start)) return {};
  const int last = canvas.Columnas(), lastRow = canvas.Filas() + 1;
  const auto across = static_cast<std::ptrdiff_t>(last + 1);
  std::vector<std::uint8_t> open = canvas.Donde(canvas.Caracter(start));  // and not yet taken
  std::vector<TramoDeFila> region;
  std::vector<Cell> seeds{start};
  while (!seeds.empty()) {
    const Cell seed = seeds.back();
    seeds.pop_back();
    std::uint8_t* const row = open.data() + seed.row * across;
    if (!row[seed.column]) continue;
    int from = seed.column, to = seed.column;
    while (from > 0 && row[from - 1]) --from;
    while (to < last && row[to + 1]) ++to;
    std::fill_n(row + from, to - from + 1, std::uint8_t{0});
    region.push_back({seed.row, from, to});
    for (const int beside : {-1, 1}) {
      if (seed.row + beside < 0 || seed.row + beside > lastRow) continue;
      const std::uint8_t* const next = row + beside * across;
      for (int column = from; column <= to; ++column)
        if (next[column] && (column == from || !next[column - 1]))
          seeds.push_back({column, seed.row + beside});
    }
  }
  if (region.size() == 1 && region[0].desde == region[0].hasta) return {};
  return region;
}

std::vector<TramoDeFila> RegionQueSeRellena(const BasEditor& editor, Cell start) {
  const Pincel& brush = editor.CurrentChar;
  const Lienzo& grid = editor.Grid;
  if (!grid.Tiene(start)) return {};
  const bool same = brush.soloTinta || grid.Caracter(start) == brush.caracter;
  if (same && brush.tinta == grid.Tinta(start)) return {};
  return RegionDe(grid, start);
}

void FloodFill(BasEditor& editor, Cell start) {
  const Pincel& brush = editor.CurrentChar;
  Lienzo& grid = editor.Grid;
  const std::vector<TramoDeFila> region = RegionQueSeRellena(editor, start);
  if (region.empty()) return;
  const char32_t with = brush.soloTinta ? grid.Caracter(start) : brush.caracter;
  for (const TramoDeFila& t : region)
    if (t.row <= grid.Filas()) grid.PonerTramo({t.desde, t.row}, t.hasta - t.desde + 1, {with, brush.tinta});
}

}  // namespace pixmosa

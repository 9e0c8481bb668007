#include "editor/Relleno.h"

#include <algorithm>

namespace pixmosa {

Region::Region(const Lienzo& canvas, Cell start) {
  if (!canvas.Tiene(start)) return;
  const int last = canvas.Columnas(), lastRow = canvas.Filas() + 1;
  across_ = static_cast<std::size_t>(last + 1);
  const auto stride = static_cast<std::ptrdiff_t>(across_);
  state_ = canvas.Donde(canvas.Caracter(start));
  around_ = {start, start};
  std::vector<Cell> seeds{start};
  while (!seeds.empty()) {
    const Cell seed = seeds.back();
    seeds.pop_back();
    std::uint8_t* const row = state_.data() + seed.row * stride;
    if (row[seed.column] != kLibre) continue;
    int from = seed.column, to = seed.column;
    while (from > 0 && row[from - 1] == kLibre) --from;
    while (to < last && row[to + 1] == kLibre) ++to;
    std::fill_n(row + from, to - from + 1, std::uint8_t{kTomada});
    spans_.push_back({seed.row, from, to});
    around_ = Unida(around_, {{from, seed.row}, {to, seed.row}});
    for (const int beside : {-1, 1}) {
      if (seed.row + beside < 0 || seed.row + beside > lastRow) continue;
      const std::uint8_t* const next = row + beside * stride;
      for (int column = from; column <= to; ++column)
        if (next[column] == kLibre && (column == from || next[column - 1] != kLibre))
          seeds.push_back({column, seed.row + beside});
    }
  }
  if (around_ == ZonaDeCeldas{start, start}) spans_.clear();
}

Region RegionQueSeRellena(const BasEditor& editor, Cell start) {
  const Pincel& brush = editor.CurrentChar;
  const Lienzo& grid = editor.Grid;
  if (!grid.Tiene(start)) return {};
  const bool same = brush.soloTinta || grid.Caracter(start) == brush.caracter;
  if (same && brush.tinta == grid.Tinta(start)) return {};
  return Region(grid, start);
}

void RellenarRegion(BasEditor& editor, const Region& region) {
  const Pincel& brush = editor.CurrentChar;
  Lienzo& grid = editor.Grid;
  for (const TramoDeFila& t : region.Tramos()) {
    const Cell first{t.desde, t.row};
    const char32_t with = brush.soloTinta ? grid.Caracter(first) : brush.caracter;
    if (grid.SePinta(first)) grid.PonerTramo(first, t.hasta - t.desde + 1, {with, brush.tinta});
  }
}

void FloodFill(BasEditor& editor, Cell start) {
  RellenarRegion(editor, RegionQueSeRellena(editor, start));
}

}  // namespace pixmosa

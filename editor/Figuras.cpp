#include "editor/Figuras.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace pixmosa {
namespace {

// The character of a step.
char32_t Paso(int columns, int rows) {
  if (rows == 0) return U'-';
  if (columns == 0) return U'|';
  return (columns > 0) == (rows > 0) ? U'\\' : U'/';
}

char32_t Punta(int columns, int rows) {
  // A cell is half as high again as it is wide.
  if (std::abs(columns) * 2 >= std::abs(rows) * 3) return columns < 0 ? U'<' : U'>';
  return rows < 0 ? U'^' : U'v';
}

}  // namespace

std::vector<Cell> CeldasDeLinea(Cell a, Cell b) {
  const int across = std::abs(b.column - a.column), down = -std::abs(b.row - a.row);
  const int right = a.column < b.column ? 1 : -1, below = a.row < b.row ? 1 : -1;
  std::vector<Cell> cells{a};
  for (int error = across + down; a != b;) {
    const int twice = 2 * error;
    if (twice >= down) {
      error += down;
      a.column += right;
    }
    if (twice <= across) {
      error += across;
      a.row += below;
    }
    cells.push_back(a);
  }
  return cells;
}

Cell Enderezada(Cell a, Cell b) {
  const int columns = b.column - a.column, rows = b.row - a.row;
  if (std::abs(columns) > 2 * std::abs(rows)) return {b.column, a.row};
  if (std::abs(rows) > 2 * std::abs(columns)) return {a.column, b.row};
  const int length = std::max(std::abs(columns), std::abs(rows));
  return {a.column + (columns < 0 ? -length : length), a.row + (rows < 0 ? -length : length)};
}

std::vector<Pintada> Linea(Cell a, Cell b, TrazoDeLinea stroke, char32_t ch) {
  const std::vector<Cell> cells = CeldasDeLinea(a, b);
  std::vector<Pintada> painted;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    // Each is drawn as the step to the next one; the last as the step to it.
    const Cell from = cells[i + 1 < cells.size() || i == 0 ? i : i - 1];
    const Cell to = i + 1 < cells.size() ? cells[i + 1] : cells[i];
    painted.push_back(
        {cells[i], stroke == TrazoDeLinea::Caracter ? ch : Paso(to.column - from.column, to.row - from.row)});
  }
  return painted;
}

std::vector<Pintada> Flecha(Cell a, Cell b) {
  std::vector<Pintada> painted = Linea(a, b, TrazoDeLinea::Pendiente, U' ');
  painted.back().caracter = Punta(b.column - a.column, b.row - a.row);
  return painted;
}

std::vector<Pintada> Elipse(const Lienzo& canvas, Cell a, Cell b, bool filled, char32_t ch) {
  const ZonaDeCeldas box = ZonaEntre(a, b);
  const double width = box.Columnas(), height = box.Filas();
  // Half the cells of a row within the ellipse, seen from its middle; at least the one in the middle.
  const auto half = [&](int row) {
    const double y = (row - box.desde.row + 0.5) * 2 / height - 1;
    return std::max(width / 2 * std::sqrt(std::max(0.0, 1 - y * y)), 0.5);
  };
  const auto first = [&](int row) {
    return box.desde.column + static_cast<int>(std::lround(std::floor(width / 2 - half(row) + 0.5)));
  };
  const int sum = box.desde.column + box.hasta.column;
  std::vector<Pintada> painted;
  for (int row = std::max(1, box.desde.row); row <= std::min(box.hasta.row, canvas.Filas()); ++row) {
    const int from = std::min(first(row), sum / 2), to = sum - from;
    // The outline reaches as far as the neighbouring rows leave it bare.
    int inner = from;
    for (const int next : {row - 1, row + 1}) {
      const bool inside = next >= box.desde.row && next <= box.hasta.row;
      inner = std::max(inner, inside ? std::min(first(next), sum / 2) - 1 : sum / 2);
    }
    for (int column = std::max(1, from); column <= std::min(to, canvas.Columnas()); ++column)
      if (filled || column <= inner || column >= sum - inner) painted.push_back({{column, row}, ch});
  }
  return painted;
}

std::vector<Pintada> Marco(const Lienzo& canvas, Cell a, Cell b, EstiloDeMarco style) {
  const ZonaDeCeldas box = ZonaEntre(a, b);
  const auto [x1, y1] = box.desde;
  const auto [x2, y2] = box.hasta;
  std::vector<Pintada> painted;
  const auto add = [&](Cell c, const Brazos& arms) {
    if (canvas.SePinta(c)) painted.push_back({c, Unir(canvas.Visto(c), arms, style)});
  };
  if (y1 == y2) {
    for (int x = x1; x <= x2; ++x) add({x, y1}, {0, 1, 0, 1});
    return painted;
  }
  if (x1 == x2) {
    for (int y = y1; y <= y2; ++y) add({x1, y}, {1, 0, 1, 0});
    return painted;
  }
  for (const int y : {y1, y2})
    for (int x = x1; x <= x2; ++x)
      add({x, y}, {y == y2 && (x == x1 || x == x2), x < x2, y == y1 && (x == x1 || x == x2), x > x1});
  for (const int x : {x1, x2})
    for (int y = y1 + 1; y < y2; ++y) add({x, y}, {1, 0, 1, 0});
  return painted;
}

void Pintar(BasEditor& editor, const std::vector<Pintada>& cells) {
  for (const auto& [c, ch] : cells) PintarCaracter(editor, c.column, c.row, ch);
}

}  // namespace pixmosa

#include "editor/basEditor.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/CodePage.h"
#include "platform/Rounding.h"

namespace pixmosa {
namespace {

struct Letra {
  char32_t caracter;
  Colour tinta;
};

// Where a text is being painted.
class Escritura {
 public:
  explicit Escritura(BasEditor& editor) : editor_(editor) {}
  bool Cabe() const { return at_.row <= editor_.Grid.Filas(); }
  void Poner(const Letra& letter) {
    if (letter.caracter == U'\r') {
      at_ = {1, at_.row + 1};
    } else if (at_.column <= editor_.Grid.Columnas()) {
      PintarCelda(editor_, at_, letter.caracter, letter.tinta);
      ++at_.column;
    }
  }

 private:
  BasEditor& editor_;
  Cell at_{1, 1};
};

// Clears and paints the text of the cells that `cell(column, row)` says for every entry of the table.
template <typename At>
void Repaint(BasEditor& editor, At cell) {
  const Lienzo& grid = editor.Grid;
  std::vector<Letra> text;
  for (int row = 0; row <= grid.Filas() + 1; ++row) {
    for (int column = 0; column <= grid.Columnas(); ++column) {
      const Cell c = cell(column, row);
      text.push_back({grid.Caracter(c), grid.Tinta(c)});
    }
    text.insert(text.end(), {{U'\r', kNoColour}, {U'\n', kNoColour}});
  }
  // Beside the drawing, so that each cell is written once.
  BasEditor turned{grid, nullptr, {}};
  turned.Grid.Anotado();  // what is written there is no action
  Clear(turned);
  Escritura write(turned);
  for (const Letra& letter : text) write.Poner(letter);
  editor.Grid.Igualar(turned.Grid);
}

// Every cell whose character `other` changes, each in its own ink.
template <typename Other>
void Cambiar(BasEditor& editor, Other other) {
  const Lienzo& grid = editor.Grid;
  for (int row = 0; row <= grid.Filas(); ++row)
    for (Cell c{0, row}; c.column <= grid.Columnas(); ++c.column) {
      const char32_t before = grid.Caracter(c), after = other(before);
      if (after != before) PintarCelda(editor, c, after, grid.Tinta(c));
    }
}

}  // namespace

Cell CellFromPoint(Point p) {
  return {RoundHalfEven((p.x - CellWidth / 2.0) / CellWidth + 1),
          RoundHalfEven((p.y - CellHeight / 2.0) / CellHeight + 1)};
}

Point PointFromCell(Cell c) {
  return {(c.column - 1) * CellWidth, (c.row - 1) * CellHeight};
}

Point SnapToLattice(Point p) {
  return {RoundHalfEven(static_cast<double>(p.x) / CellWidth) * CellWidth,
          RoundHalfEven(static_cast<double>(p.y) / CellHeight) * CellHeight};
}

bool IsValidCell(const BasEditor& editor, int column, int row) {
  return editor.Grid.SePinta({column, row});
}

void PintarCaracter(BasEditor& editor, int column, int row, char32_t ch) {
  const Pincel& brush = editor.CurrentChar;
  if (!IsValidCell(editor, column, row)) return;
  const Cell c{column, row};
  PintarCelda(editor, c, brush.soloTinta ? editor.Grid.Caracter(c) : ch, brush.tinta);
}

void PintarCelda(BasEditor& editor, Cell c, char32_t ch, Colour ink) {
  if (editor.Grid.SePinta(c)) editor.Grid.Poner(c, {ch, ink});
}

void EraseCell(BasEditor& editor, Cell c) {
  if (!editor.Grid.Tiene(c)) return;
  Contenido content = editor.Grid.En(c);
  content.borrada = content.caracter != U' ';
  editor.Grid.Poner(c, content);
}

void PaintText(BasEditor& editor, std::string_view text) {
  Escritura write(editor);
  // Line by line, as the text is taken apart when it goes out: a broken sequence ends with its line.
  while (write.Cabe()) {
    const std::size_t end = text.find('\r');
    for (std::string_view row = text.substr(0, end); !row.empty();) write.Poner({NextUtf8(row), kNoColour});
    if (end == std::string_view::npos) return;
    write.Poner({U'\r', kNoColour});
    text.remove_prefix(end + 1);
  }
}

void Clear(BasEditor& editor) {
  Lienzo& grid = editor.Grid;
  const int last = grid.Columnas(), rows = grid.Filas();
  for (int row = 0; row <= rows; ++row) grid.PonerTramo({0, row}, grid.EsElNuevo() ? last : last + 1, {});
  for (Cell c{last, 0}; c.row <= rows && grid.EsElNuevo(); ++c.row) {
    Contenido content = grid.En(c);
    content.resto = content.caracter != U' ';  // it stays in the grid, no longer seen
    grid.Poner(c, content);
  }
}

void DrawBox(BasEditor& editor, Point a, Point b, bool filled) {
  const auto [x1, x2] = std::minmax(a.x, b.x);
  const auto [y1, y2] = std::minmax(a.y, b.y);
  const auto column = [](int x) { return (x - CellWidth / 2.0) / CellWidth + 1.5; };
  const auto line = [](int y) { return (y - CellHeight / 2.0) / CellHeight + 1.5; };
  const double c1 = column(x1), r1 = line(y1), r2 = line(y2);
  const int c2 = RoundHalfEven(column(x2));
  for (int c = RoundHalfEven(c1); c <= c2 - 1; ++c) {
    const bool side = c == c1 || c == c2 - 1;
    for (int r = RoundHalfEven(r1); r <= RoundHalfEven(r2 - 1); ++r) {
      const bool end = r == r1 || r == r2 - 1;
      if (side || end) {
        PintarCaracter(editor, c, r, side && end ? U'+' : side ? U'|' : U'-');
      } else if (filled) {
        PintarCaracter(editor, c, r, editor.CurrentChar.caracter);
      }
    }
  }
}

void FlipHorizontal(BasEditor& editor) {
  const int last = editor.Grid.Columnas();
  Repaint(editor, [last](int column, int row) { return Cell{last - column, row}; });
}

void FlipVertical(BasEditor& editor) {
  const int last = editor.Grid.Filas() + 1;
  Repaint(editor, [last](int column, int row) { return Cell{column, last - row}; });
}

void UpperToLower(BasEditor& editor) {
  Cambiar(editor, [](char32_t c) { return c >= U'A' && c <= U'Z' ? c + 32 : c; });
}

void LowerToUpper(BasEditor& editor) {
  Cambiar(editor, [](char32_t c) { return c >= U'a' && c <= U'z' ? c - 32 : c; });
}

void ReplaceEverywhere(BasEditor& editor, char32_t find, char32_t replacement) {
  Cambiar(editor, [=](char32_t c) { return c == find ? replacement : c; });
}

}  // namespace pixmosa

#include "editor/Bloque.h"

#include <algorithm>

#include "editor/TextoDelEditor.h"
#include "platform/CodePage.h"

namespace pixmosa {
namespace {

char32_t Legible(char32_t c) {
  return c < 32 ? U' ' : c;
}

}  // namespace

ZonaDeCeldas EnElLienzo(const Lienzo& canvas, const ZonaDeCeldas& zone) {
  return {
      {std::clamp(zone.desde.column, 1, canvas.Columnas()), std::clamp(zone.desde.row, 1, canvas.Filas())},
      {std::clamp(zone.hasta.column, 1, canvas.Columnas()), std::clamp(zone.hasta.row, 1, canvas.Filas())}};
}

ZonaDeCeldas ZonaEntera(const Lienzo& canvas) {
  return {{1, 1}, {canvas.Columnas(), canvas.Filas()}};
}

ZonaDeCeldas ZonaUsada(const Lienzo& canvas) {
  ZonaDeCeldas used{{canvas.Columnas(), canvas.Filas()}, {1, 1}};
  bool any = false;
  for (int row = 1; row <= canvas.Filas(); ++row)
    for (Cell c{1, row}; c.column <= canvas.Columnas(); ++c.column)
      if (Legible(canvas.Visto(c)) != U' ') {
        used = any ? Unida(used, {c, c}) : ZonaDeCeldas{c, c};
        any = true;
      }
  return any ? used : ZonaDeCeldas{{1, 1}, {1, 1}};
}

Bloque Copiado(const Lienzo& canvas, const ZonaDeCeldas& zone) {
  Bloque block{zone.Columnas(), zone.Filas(), {}};
  block.letras.reserve(static_cast<std::size_t>(block.columnas) * static_cast<std::size_t>(block.filas));
  for (int row = zone.desde.row; row <= zone.hasta.row; ++row)
    for (Cell c{zone.desde.column, row}; c.column <= zone.hasta.column; ++c.column)
      block.letras.push_back({Legible(canvas.Visto(c)), canvas.Tinta(c)});
  return block;
}

std::string TextoDe(const Bloque& block) {
  std::string text;
  for (int row = 0; row < block.filas; ++row) {
    if (row > 0) text += "\r\n";
    int end = block.columnas;
    while (end > 0 && block.En(end - 1, row).caracter == U' ') --end;
    for (int column = 0; column < end; ++column) AppendUtf8(text, block.En(column, row).caracter);
  }
  return text;
}

Bloque BloqueDe(std::string_view utf8) {
  Dibujo drawing = DibujoDeUtf8(utf8);
  if (!drawing.filas.empty() && drawing.filas.back().empty()) drawing.filas.pop_back();
  Bloque block{static_cast<int>(std::min<std::size_t>(drawing.Columnas(), kLadoMayor)),
               static_cast<int>(std::min<std::size_t>(drawing.filas.size(), kLadoMayor)),
               {}};
  for (int row = 0; row < block.filas; ++row) {
    const Fila& cells = drawing.filas[static_cast<std::size_t>(row)];
    for (std::size_t i = 0; i < static_cast<std::size_t>(block.columnas); ++i)
      block.letras.push_back({i < cells.size() ? Legible(cells[i].caracter) : U' ', kNoColour});
  }
  return block;
}

void Poner(BasEditor& editor, const Bloque& block, Cell at, bool porosa) {
  for (int row = 0; row < block.filas; ++row)
    for (int column = 0; column < block.columnas; ++column) {
      const Letra& letter = block.En(column, row);
      const Cell c{at.column + column, at.row + row};
      if (c.column > 0 && c.row > 0 && !(porosa && letter.caracter == U' '))
        PintarCelda(editor, c, letter.caracter, letter.tinta);
    }
}

void Llenar(BasEditor& editor, const ZonaDeCeldas& zone, char32_t ch) {
  for (int row = zone.desde.row; row <= zone.hasta.row; ++row)
    for (int column = zone.desde.column; column <= zone.hasta.column; ++column)
      PintarCaracter(editor, column, row, ch);
}

Bloque Volteado(const Bloque& block, Eje axis) {
  Bloque turned{block.columnas, block.filas, {}};
  for (int row = 0; row < block.filas; ++row)
    for (int column = 0; column < block.columnas; ++column) {
      const Letra& from = axis == Eje::Horizontal ? block.En(block.columnas - 1 - column, row)
                                                  : block.En(column, block.filas - 1 - row);
      turned.letras.push_back({Reflejado(from.caracter, axis), from.tinta});
    }
  return turned;
}

int Reemplazar(BasEditor& editor, const ZonaDeCeldas& zone, char32_t find, char32_t replacement) {
  int count = 0;
  for (int row = zone.desde.row; row <= zone.hasta.row; ++row)
    for (Cell c{zone.desde.column, row}; c.column <= zone.hasta.column; ++c.column)
      if (editor.Grid.Visto(c) == find) {
        PintarCelda(editor, c, replacement, editor.Grid.Tinta(c));
        ++count;
      }
  return count;
}

void Redimensionar(BasEditor& editor, int columns, int rows, Cell desde) {
  const TextoAbierto* opened = editor.Abierto.get();
  const bool cut = opened && (desde != Cell{1, 1} || opened->celdas > columns || opened->lineas > rows);
  if (cut) AlinearRenglones(editor);
  const Lienzo& old = editor.Grid;
  Lienzo resized(columns, rows);
  // What lies outside the visible area stays there.
  for (int row = desde.row == 1 ? 0 : 1; row <= rows && row + desde.row - 1 <= old.Filas(); ++row)
    for (int column = desde.column == 1 ? 0 : 1;
         column <= columns && column + desde.column - 1 <= old.Columnas(); ++column) {
      Contenido content = old.En({column + desde.column - 1, row + desde.row - 1});
      if (content.resto) content = {};
      resized.Poner({column, row}, content);
    }
  editor.Grid.Sustituir(std::move(resized));
  if (cut) editor.Abierto.reset();
}

}  // namespace pixmosa

// Cells of an editor's drawing as rows of text.
#pragma once

#include <string>
#include <vector>

#include "editor/Lienzo.h"
#include "platform/CodePage.h"

namespace pixmosa::test {

// Rows first..last, columns 1..columns: what the grid holds, or what is on screen.
inline std::vector<std::string> Rows(const Lienzo& canvas, int first, int last, int columns,
                                     bool seen = false) {
  std::vector<std::string> rows;
  for (int row = first; row <= last; ++row) {
    rows.emplace_back();
    for (Cell c{1, row}; c.column <= columns; ++c.column)
      AppendUtf8(rows.back(), seen ? canvas.Visto(c) : canvas.Caracter(c));
  }
  return rows;
}

inline std::vector<std::string> Seen(const Lienzo& canvas, int first, int last, int columns) {
  return Rows(canvas, first, last, columns, true);
}

}  // namespace pixmosa::test

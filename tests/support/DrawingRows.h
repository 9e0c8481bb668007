// Cells of an editor's drawing as rows of text.
#pragma once

#include <string>
#include <vector>

#include "editor/basEditor.h"

namespace pixmosa::test {

// Rows first..last, columns 1..columns.
inline std::vector<std::string> Rows(const Characters& cells, int first, int last, int columns) {
  std::vector<std::string> rows;
  for (int row = first; row <= last; ++row) {
    rows.emplace_back();
    for (int column = 1; column <= columns; ++column) rows.back() += cells.At({column, row});
  }
  return rows;
}

}  // namespace pixmosa::test

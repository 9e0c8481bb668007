#include "editor/basEditor.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/Rounding.h"

namespace pixmosa {
namespace {

constexpr int kLastColumn = kColumns - 1, kLastRow = kRows - 1;

void Show(BasEditor& editor, Cell c, char ch) {
  if (editor.Screen.At(c) == ch) return;
  editor.Screen.At(c) = ch;
  editor.Changed.push_back(c);
}

// Clears and paints the text that `cells` yields for each row of `rows`.
template <typename RowText>
void Repaint(BasEditor& editor, RowText rowText) {
  std::string text;
  text.reserve(static_cast<std::size_t>((kColumns + 2) * kRows));
  for (int i = 0; i < kRows; ++i) text += rowText(i) + "\r\n";
  Clear(editor);
  PaintText(editor, text);
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

bool IsValidCell(int column, int row) {
  return column >= 0 && column < kColumns && row >= 0 && row < kPaintableRows;
}

bool IsInGrid(Cell c) {
  return c.column >= 0 && c.column < kColumns && c.row >= 0 && c.row < kRows;
}

void PintarCaracter(BasEditor& editor, int column, int row, char ch) {
  if (!IsValidCell(column, row)) return;
  Show(editor, {column, row}, ch);
  editor.Grid.At({column, row}) = ch;
  if (column == kLastColumn) editor.Resto[static_cast<std::size_t>(row)] = false;
}

void EraseCell(BasEditor& editor, Cell c) {
  if (IsInGrid(c)) Show(editor, c, ' ');
}

void PaintText(BasEditor& editor, std::string_view text) {
  int column = 1, row = 1;
  for (const char ch : text) {
    if (row >= kPaintableRows) return;
    if (ch == '\r') {
      ++row;
      column = 1;
    } else if (column < kColumns) {
      PintarCaracter(editor, column++, row, ch);
    }
  }
}

void Clear(BasEditor& editor) {
  editor.Screen = Characters();
  editor.AllChanged = true;
  for (int row = 0; row < kPaintableRows; ++row) {
    for (int column = 0; column < kLastColumn; ++column) editor.Grid.At({column, row}) = ' ';
    editor.Resto[static_cast<std::size_t>(row)] = editor.Grid.At({kLastColumn, row}) != ' ';
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
        PintarCaracter(editor, c, r, side && end ? '+' : side ? '|' : '-');
      } else if (filled) {
        PintarCaracter(editor, c, r, editor.CurrentChar);
      }
    }
  }
}

void FloodFill(BasEditor& editor, Cell start) {
  if (!IsInGrid(start)) return;
  const char target = editor.Grid.At(start);
  if (target == editor.CurrentChar) return;
  Characters taken;  // "x" where a cell has been taken up
  std::vector<Cell> queue = {start};
  for (std::size_t head = 0; head < queue.size(); ++head) {
    const Cell at = queue[head];
    for (const Cell next : {Cell{at.column + 1, at.row},
                            {at.column - 1, at.row},
                            {at.column, at.row + 1},
                            {at.column, at.row - 1}}) {
      if (!IsInGrid(next) || editor.Grid.At(next) != target || taken.At(next) == 'x') continue;
      taken.At(next) = 'x';
      PintarCaracter(editor, next.column, next.row, editor.CurrentChar);
      queue.push_back(next);
    }
  }
}

void FlipHorizontal(BasEditor& editor) {
  Repaint(editor, [&](int row) {
    std::string s;
    for (int column = kLastColumn; column >= 0; --column) s += editor.Grid.At({column, row});
    return s;
  });
}

void FlipVertical(BasEditor& editor) {
  Repaint(editor, [&](int i) {
    std::string s;
    for (int column = 0; column <= kLastColumn; ++column) s += editor.Grid.At({column, kLastRow - i});
    return s;
  });
}

void UpperToLower(BasEditor& editor) {
  for (char c = 'A'; c <= 'Z'; ++c) ReplaceEverywhere(editor, c, static_cast<char>(c + 32));
}

void LowerToUpper(BasEditor& editor) {
  for (char c = 'a'; c <= 'z'; ++c) ReplaceEverywhere(editor, c, static_cast<char>(c - 32));
}

void ReplaceEverywhere(BasEditor& editor, char find, char replacement) {
  for (int column = 0; column < kColumns; ++column)
    for (int row = 0; row < kRows; ++row)
      if (editor.Grid.At({column, row}) == find) PintarCaracter(editor, column, row, replacement);
}

}  // namespace pixmosa

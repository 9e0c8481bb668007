// The character-cell drawing: its grid, the tools that paint into it and the transformations of the whole.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace pixmosa {

inline constexpr int CellWidth = 8, CellHeight = 12;  // pixels
inline constexpr int kColumns = 101, kRows = 76;      // entries 0..100 and 0..75; visible ones start at 1
inline constexpr int kPaintableRows = 75;             // row 75 is visible but can never be painted

struct Cell {
  int column, row;
  bool operator==(const Cell&) const = default;
};

struct Point {
  int x, y;  // pixels
  bool operator==(const Point&) const = default;
};

// One character a cell, in the 8-bit code page.
class Characters {
 public:
  Characters() { codes_.fill(' '); }
  char& At(Cell c) { return codes_[Index(c)]; }
  char At(Cell c) const { return codes_[Index(c)]; }
  bool operator==(const Characters&) const = default;

 private:
  static std::size_t Index(Cell c) { return static_cast<std::size_t>(c.row * kColumns + c.column); }
  std::array<char, static_cast<std::size_t>(kColumns* kRows)> codes_;
};

struct TextoAbierto;

// The state of the editor. `Grid` is the drawing; `Screen` is what is seen, which the eraser changes alone.
struct BasEditor {
  Characters Grid, Screen;
  std::array<bool, kRows> Resto{};              // rows whose last column holds what Clear left there, unseen
  std::shared_ptr<const TextoAbierto> Abierto;  // what was opened; none for a new drawing
  char CurrentChar = '#';
  std::vector<Cell> Changed;  // cells whose screen changed since somebody last cleared this list
  bool AllChanged = false;    // the whole screen did
};

// The cell under a pointer position, half to even: the exact left (upper) edge of every odd cell counts to
// the one before it. The result may lie outside the grid.
Cell CellFromPoint(Point p);

// The top left pixel of a cell.
Point PointFromCell(Cell c);

// A point on the lattice of cell corners, half to even.
Point SnapToLattice(Point p);

// Whether a cell can be painted: columns 0..100, rows 0..74.
bool IsValidCell(int column, int row);

// Whether `Grid` holds the cell at all: columns 0..100, rows 0..75.
bool IsInGrid(Cell c);

// Paints one cell on screen and in the grid. Nothing happens outside the valid cells.
void PintarCaracter(BasEditor& editor, int column, int row, char ch);

// Removes a character from the screen; the grid keeps it.
void EraseCell(BasEditor& editor, Cell c);

// Paints a text from column 1, row 1. CR begins the next row; LF is a character like any other.
void PaintText(BasEditor& editor, std::string_view text);

// Clears the screen and the grid's columns 0..99 and rows 0..74.
void Clear(BasEditor& editor);

// A box between two corners in pixels: "+" corners, "|" and "-" sides, CurrentChar inside when filled.
void DrawBox(BasEditor& editor, Point a, Point b, bool filled);

// Fills the 4-connected region of cells equal to the start's character with CurrentChar, breadth first. Each
// matching cell is taken up at most once. The start is painted only when it is reached again from a
// neighbour.
void FloodFill(BasEditor& editor, Cell start);

// Turn the drawing through its text; both shift it as PaintText does.
void FlipHorizontal(BasEditor& editor);
void FlipVertical(BasEditor& editor);

// The 26 unaccented letters.
void UpperToLower(BasEditor& editor);
void LowerToUpper(BasEditor& editor);

// Repaints every cell that holds `find`.
void ReplaceEverywhere(BasEditor& editor, char find, char replacement);

}  // namespace pixmosa

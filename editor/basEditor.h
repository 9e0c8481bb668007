// The character-cell drawing: its grid, the specified tools that paint into it and the transformations of the
// whole. On a canvas of another size than the new one, the last column and row take the places of 100 and 75.
#pragma once

#include <memory>
#include <string_view>

#include "editor/Lienzo.h"

namespace pixmosa {

inline constexpr int CellWidth = 8, CellHeight = 12;  // pixels

struct Point {
  int x, y;  // pixels
  bool operator==(const Point&) const = default;
};

struct TextoAbierto;

// What the tools paint with.
struct Pincel {
  char32_t caracter = U'#';
  Colour tinta = kNoColour;
  bool soloTinta = false;  // the characters stay as they are
};

struct BasEditor {
  Lienzo Grid;
  std::shared_ptr<const TextoAbierto> Abierto;  // what was opened; none for a new drawing
  Pincel CurrentChar;
};

// The cell under a pointer position, half to even: the exact left (upper) edge of every odd cell counts to
// the one before it. The result may lie outside the grid.
Cell CellFromPoint(Point p);

// The top left pixel of a cell.
Point PointFromCell(Cell c);

// A point on the lattice of cell corners, half to even.
Point SnapToLattice(Point p);

// Whether a cell can be painted: columns 0..100, rows 0..74 of the new canvas.
bool IsValidCell(const BasEditor& editor, int column, int row);

// Paints one cell on screen and in the grid, in the brush's ink. Nothing happens outside the valid cells.
void PintarCaracter(BasEditor& editor, int column, int row, char32_t ch);

// The same in an ink of its own.
void PintarCelda(BasEditor& editor, Cell c, char32_t ch, Colour ink);

// Removes a character from the screen; the grid keeps it.
void EraseCell(BasEditor& editor, Cell c);

// Paints a text (UTF-8) from column 1, row 1, without ink. CR begins the next row; LF is a character like any
// other.
void PaintText(BasEditor& editor, std::string_view text);

// Clears the screen and the grid but for the last row, and the last column of the new canvas's size.
void Clear(BasEditor& editor);

// A box between two corners in pixels: "+" corners, "|" and "-" sides, CurrentChar inside when filled.
void DrawBox(BasEditor& editor, Point a, Point b, bool filled);

// Turn the drawing through its text; both shift it as PaintText does. Inks go with their characters.
void FlipHorizontal(BasEditor& editor);
void FlipVertical(BasEditor& editor);

// The 26 unaccented letters.
void UpperToLower(BasEditor& editor);
void LowerToUpper(BasEditor& editor);

// Repaints every cell that holds `find`, each in its own ink.
void ReplaceEverywhere(BasEditor& editor, char32_t find, char32_t replacement);

}  // namespace pixmosa

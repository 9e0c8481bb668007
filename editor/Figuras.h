// Lines, arrows, ellipses and boxes as the cells that they would paint, to be shown before they are.
#pragma once

#include <vector>

#include "editor/PartesDeMarco.h"
#include "editor/basEditor.h"

namespace pixmosa {

struct Pintada {
  Cell celda;
  char32_t caracter;
  bool operator==(const Pintada&) const = default;
};

// The cells from one to another, both with it (Bresenham): each touches the one before, if only by a corner.
std::vector<Cell> CeldasDeLinea(Cell a, Cell b);

// The end of a line from `a` to `b` turned to the nearest of eight directions.
Cell Enderezada(Cell a, Cell b);

enum class TrazoDeLinea { Caracter, Pendiente };  // one character, or "-", "|", "/" and "\" as it runs

std::vector<Pintada> Linea(Cell a, Cell b, TrazoDeLinea stroke, char32_t ch);

// A line as it runs, with a head of "<", ">", "^" or "v" at its end.
std::vector<Pintada> Flecha(Cell a, Cell b);

// The outline of the largest ellipse between two corners, or all of it. Only the part on the canvas.
std::vector<Pintada> Elipse(const Lienzo& canvas, Cell a, Cell b, bool filled, char32_t ch);

// The sides of a box between two corners, joined with what is on the canvas; a line where it is one cell wide
// or high.
std::vector<Pintada> Marco(const Lienzo& canvas, Cell a, Cell b, EstiloDeMarco style);

// Paints them all, as PintarCaracter does.
void Pintar(BasEditor& editor, const std::vector<Pintada>& cells);

}  // namespace pixmosa

// What a fill takes: the connected cells of one character.
#pragma once

#include <vector>

#include "editor/basEditor.h"

namespace pixmosa {

// Some cells of a row, the last one too.
struct TramoDeFila {
  int row, desde, hasta;
  bool operator==(const TramoDeFila&) const = default;
};

// The 4-connected entries of the grid that hold the start's character, each once. Empty for a start outside,
// and for one without a neighbour of its kind: a fill leaves that as it is.
std::vector<TramoDeFila> RegionDe(const Lienzo& canvas, Cell start);

// What a fill from there with the brush would paint: its region, or nothing where it is as it would become.
std::vector<TramoDeFila> RegionQueSeRellena(const BasEditor& editor, Cell start);

void FloodFill(BasEditor& editor, Cell start);

}  // namespace pixmosa

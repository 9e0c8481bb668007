// What a fill takes: the connected cells of one character.
#pragma once

#include <cstdint>
#include <vector>

#include "editor/basEditor.h"

namespace pixmosa {

// Some cells of a row, the last one too.
struct TramoDeFila {
  int row, desde, hasta;
};

// Connected entries of a grid, each once.
class Region {
 public:
  Region() = default;
  // The 4-connected entries that hold the start's character. Empty for a start outside, and for one without a
  // neighbour of its kind: a fill leaves that as it is.
  Region(const Lienzo& canvas, Cell start);

  bool Vacia() const { return spans_.empty(); }
  bool Contiene(Cell c) const {
    return !spans_.empty() && around_.Contiene(c) &&
           state_[static_cast<std::size_t>(c.row) * across_ + static_cast<std::size_t>(c.column)] == kTomada;
  }
  const std::vector<TramoDeFila>& Tramos() const { return spans_; }
  const ZonaDeCeldas& Alrededor() const { return around_; }

 private:
  enum : std::uint8_t { kOtra, kLibre, kTomada };
  std::size_t across_ = 0;
  std::vector<std::uint8_t> state_;  // of each entry of the grid
  std::vector<TramoDeFila> spans_;
  ZonaDeCeldas around_{};
};

// What a fill from there with the brush would paint: its region, or nothing where it is as it would become.
Region RegionQueSeRellena(const BasEditor& editor, Cell start);

// Paints a region of one character with the brush.
void RellenarRegion(BasEditor& editor, const Region& region);

// Fills the start's region. The brush's own character is left as it is, unless the ink differs.
void FloodFill(BasEditor& editor, Cell start);

}  // namespace pixmosa

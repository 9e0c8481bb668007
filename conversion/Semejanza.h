// How near a text comes to the picture it was made of: the text is drawn again with its font and both are
// compared as an eye sees them from a far, a near and a fine distance.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "conversion/Malla.h"
#include "platform/TextSurface.h"

namespace pixmosa {

// Each at most 1; 1 is alike, 0 nothing in common, below 0 the contrary.
struct Semejanza {
  double tono = 0;  // correlation of the cells' lightness
  // Structural similarity (Wang, Bovik, Sheikh and Simoncelli, 2004) after the text's mean and deviation were
  // made those of the picture, windows weighted by the picture's contrast in them.
  double lejos = 0, cerca = 0, fino = 0;

  // The mean of the four, times 100.
  double Puntos() const { return (tono + lejos + cerca + fino) * 25; }
};

// The light of a drawn text on subcells, 2 across and 4 down for each of size.width x size.height cells; what
// lies outside the rows is paper.
Malla LuzDeTexto(TextSurface& surface, const Font& font, Extent cell, const std::vector<std::u32string>& rows,
                 Extent size, bool negative);

// `picture` and `text` are light on the same subcells; `cell` gives a cell's shape.
Semejanza Comparar(const Malla& picture, const Malla& text, Extent cell);

}  // namespace pixmosa

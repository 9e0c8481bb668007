// The colours of a picture for the cells of a drawing.
#pragma once

#include <span>

#include "platform/Dibujo.h"
#include "platform/Picture.h"

namespace pixmosa {

// One pixel for each of cells.width x cells.height equal boxes that cover `picture`: the mean of the light in
// the box, a pixel that lies in it in part counted by its area. Means are taken in linear light (sRGB), so
// that black and white in equal parts give 188. Neither is empty; cells is 20,000 wide or high at most.
Picture MediasDeCeldas(const Picture& picture, Extent cells);

// The ink of the cell at column x of row r becomes the colour of `means` at (x, rows[r]), without rows at
// (x, r). Cells beyond the picture keep theirs.
void Colorear(Dibujo& drawing, const Picture& means, std::span<const int> rows = {});

}  // namespace pixmosa

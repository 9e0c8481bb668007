// A grid of numbers over a picture, and the two ways of making one number of several: area means and blurs.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/Picture.h"

namespace pixmosa {

// Rows from the top, without padding.
struct Malla {
  Malla() = default;
  Malla(std::size_t across, std::size_t down) : ancho(across), alto(down), valores(across * down) {}

  std::span<float> Fila(std::size_t y) { return std::span(valores).subspan(y * ancho, ancho); }
  std::span<const float> Fila(std::size_t y) const { return std::span(valores).subspan(y * ancho, ancho); }

  std::size_t ancho = 0, alto = 0;
  std::vector<float> valores;
};

// Of how many pixels each way a mean of light is made, at least, where the picture has them. Fewer down,
// because a row that is left out need not be fetched from memory.
inline constexpr int kMuestrasDeAncho = 3, kMuestrasDeAlto = 2;

// The mean light (0.2126 R + 0.7152 G + 0.0722 B, linear, 0..1) of each of size.width x size.height equal
// parts of a picture, pixels on an edge counted by their share. Of a picture with more pixels in a part than
// those, that many are taken, evenly.
Malla LuzMedia(const Picture& picture, Extent size);

// The same of ink or any other numbers, every one of them counted: `values` are rows of from.width.
Malla MediaDe(std::span<const float> values, Extent from, Extent size);

// Blurred by a Gaussian of these deviations in cells, from three on made of three box means after one another
// (Wells, 1986); the weights outside the grid are left out.
Malla Difuminar(const Malla& m, double across, double down);

}  // namespace pixmosa

// Drawings as pixels: what the writers of pictures share.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "exportar/Formatos.h"

namespace pixmosa {

struct Sitio {
  std::size_t fila, columna;
};

// The cells of every character that has to be drawn.
std::map<char32_t, std::vector<Sitio>> PorCaracter(const Dibujo& drawing);

// A stored pixel between paper and ink, `coverage` 0..255 of ink.
std::uint32_t Mezcla(std::uint32_t paper, std::uint32_t ink, std::uint32_t coverage);

// Puts one cell, a glyph's coverage in ink and paper, where its top left pixel is `to`.
void PintarCelda(std::uint32_t* to, std::ptrdiff_t stride, Extent size, const std::uint8_t* coverage,
                 std::uint32_t paper, std::uint32_t ink);

// Throws DibujoExcesivo for more than 400 million pixels.
void ExigirPixeles(double width, double height);

}  // namespace pixmosa

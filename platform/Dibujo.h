// Character art as cells: what every maker of art gives and every writer of a format takes.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/Colour.h"

namespace pixmosa {

struct Celda {
  char32_t caracter = U' ';
  Colour tinta = kNoColour;  // kNoColour: the ink of the whole drawing
  Colour papel = kNoColour;  // kNoColour: its paper
  bool operator==(const Celda&) const = default;
};

using Fila = std::vector<Celda>;

// Rows from the top; they may differ in length.
struct Dibujo {
  std::vector<Fila> filas;

  // Cells of the longest row.
  std::size_t Columnas() const;
};

// The rows of a text of the 8-bit code page, between CR LF, LF or CR, without colours. A text that ends in a
// line end has an empty last row; an empty text has no row.
Dibujo DibujoDeTexto(std::string_view bytes);

// The same of UTF-8; a malformed sequence is U+FFFD.
Dibujo DibujoDeUtf8(std::string_view utf8);

}  // namespace pixmosa

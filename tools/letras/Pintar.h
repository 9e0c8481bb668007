// From the map of a letter to rows of characters. Every painter gives rows of one length; a map gives the
// same number of rows whatever its width.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/letras/Hoja.h"
#include "tools/letras/Mapa.h"

namespace pixmosa::letras {

// A pixel is `ink` or `paper`, texts of one length.
Filas Sellar(const Mapa& m, std::string_view ink, std::string_view paper);

// The ink's character from its place, the paper blank.
Filas Tramar(const Mapa& m, const std::function<char(int x, int y)>& ink);

// The letter painted several times over itself, moved by x and y; the last one on top. A blank rubs out.
struct Capa {
  int x, y;
  char ink;
};
Filas Apilar(const Mapa& m, const std::vector<Capa>& layers);

// The edges between ink and paper with "_" and "|"; a pixel is `inside` characters wide between its sides.
Filas Perfilar(const Mapa& m, int inside);

// The same with a shade of ":" to the right and below.
Filas Sombrear(const Mapa& m, int inside);

// Two rows of pixels in a row of characters: `chars` has those for none, the lower, the upper and both.
Filas Doblar(const Mapa& m, std::string_view chars);

// Two by two pixels in a character: `chars` has the 16 for upper left 8, upper right 4, lower left 2, lower
// right 1.
Filas Cuartear(const Mapa& m, std::string_view chars);

}  // namespace pixmosa::letras

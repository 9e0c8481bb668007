// How near produced texts come to the working picture.
#pragma once

#include <string>
#include <string_view>

#include "conversion/Semejanza.h"
#include "programa/Programa.h"

namespace pixmosa {

struct Resultado {
  std::string nombre;
  Semejanza semejanza;
};

// Draws a text (UTF-8) again with the program's font and compares it with the working picture, which is
// there, on the grid of the text that a method would make of it. Throws TextoExcesivo.
Semejanza Puntuar(const Programa& p, std::string_view utf8);

// The text that a method makes of the working picture, UTF-8; the produced text stays as it is. Throws
// TextoExcesivo.
std::string TextoDe(Programa& p, int method);

// The text of the working picture, drawn, is of a size that can be looked at. Throws TextoExcesivo.
bool SePuedeDibujar(const Programa& p);

// A text (UTF-8) drawn smooth with the program's font, black on white, with the negative option white on
// black: as many cells as the text of the working picture has, of which SePuedeDibujar.
Picture Dibujar(const Programa& p, std::string_view utf8);

}  // namespace pixmosa

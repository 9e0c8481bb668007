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

}  // namespace pixmosa

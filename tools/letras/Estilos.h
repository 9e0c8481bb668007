// The styles: each makes one font of the master alphabet.
#pragma once

#include <string_view>
#include <vector>

#include "tools/letras/Pintar.h"

namespace pixmosa::letras {

// `paint` gets the shape of a letter without blank columns at its sides, at least a column wide, and its
// code; the rows it gives hold the blank between letters too.
struct Estilo {
  std::string_view nombre, categoria, subcategoria, descripcion;  // UTF-8
  Filas (*pintar)(const Mapa& m, int code);
};

extern const std::vector<Estilo> kEstilos;

}  // namespace pixmosa::letras

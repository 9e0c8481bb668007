// The styles: each makes one font of a sheet.
#pragma once

#include <string_view>
#include <vector>

#include "tools/letras/Pintar.h"

namespace pixmosa::letras {

// How letters that are pushed together meet (the header's number): they keep their margin, or share an edge
// where both have the same character or one has a line below.
enum Junta : int { kMargen = 32, kPared = 35 };

// `pintar` gets a shape of the sheet, at least a column wide, and its code; `margen` columns follow it.
struct Estilo {
  std::string_view nombre, categoria, subcategoria, descripcion, hoja;  // UTF-8
  Junta junta;
  int margen;
  Filas (*pintar)(const Filas& shape, int code);
};

extern const std::vector<Estilo> kEstilos;

}  // namespace pixmosa::letras

// PNG files through libpng: rows go straight into the picture's block, and nothing is printed (the general
// reader leaves libpng its standard error).
#pragma once

#include <string>
#include <string_view>

#include "platform/Picture.h"

namespace pixmosa {

bool EsPng(std::string_view bytes);

// The size that the header declares; empty where there is no header.
Extent TamanoDePng(std::string_view bytes);

// True where the last piece (IEND) is there, that is, the file was not cut short.
bool PngLlegaAlFinal(std::string_view bytes);

// The picture, transparent pixels on white, 16 bits rounded to 8. Empty for a damaged file or one that libpng
// found no memory for. Throws std::bad_alloc.
Picture LeerPng(std::string_view bytes);

// Rapido: each row less the row above, then lengths of runs, the quickest way that still packs. Pequeno:
// every filter and the usual search, for what is kept, sent or part of a page; several times as long.
// Mediano: every filter and a short search, for the many pictures of a film.
enum class Empaquetado { Rapido, Mediano, Pequeno };

// The bytes of a file of three 8-bit parts a pixel. Throws std::bad_alloc.
std::string EscribirPng(const Picture& picture, Empaquetado packing = Empaquetado::Rapido);

}  // namespace pixmosa

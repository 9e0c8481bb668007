// What a shell can offer for the value of an option.
#pragma once

#include <string>
#include <string_view>

#include "cli/Orden.h"

namespace pixmosa::manuales {

enum class Ofrece { SinValor, Palabras, Archivos, Carpetas, Nada };

// Its words, where it offers some: the choices, or every number of a short range.
std::string PalabrasDe(const cli::Opcion& option);

Ofrece OfreceDe(const cli::Opcion& option);

// `text` with a backslash before each of its characters that `special` holds.
std::string Escapado(std::string_view text, std::string_view special);

}  // namespace pixmosa::manuales

// A film on the terminal.
#pragma once

#include <chrono>
#include <string>

#include "cli/Consola.h"
#include "programa/Pelicula.h"

namespace pixmosa::cli {

// Plays the film once at its pace on standard output, on the terminal's other screen without a cursor, and
// leaves both as they were, also where a signal ends the program. A frame whose time is over before it could
// be made is passed over. Throws PictureError, TextoExcesivo, ErrorDeTrabajo.
void Reproducir(Consola& consola, Programa& p, const Pelicula& film, const Revelado& how, bool ajustar);

}  // namespace pixmosa::cli

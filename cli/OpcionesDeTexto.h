// The options that shape the produced text, shared by the orders that convert pictures.
#pragma once

#include <vector>

#include "cli/Argumentos.h"
#include "cli/Consola.h"

namespace pixmosa::cli {

// --paleta, --negativo, --fuente, --puntos: what the character tables depend on.
std::vector<Opcion> OpcionesDeTabla();

// Those of the tables and --columnas, --luminosidad.
std::vector<Opcion> OpcionesDeTexto();

// A program with the settings as the options ask for them, measured; AsciiColumns from --columnas or the
// terminal. Throws ErrorDeTrabajo.
Programa PrepararPrograma(Consola& consola, const Argumentos& arguments);

// a followed by b.
std::vector<Opcion> Juntar(std::vector<Opcion> a, const std::vector<Opcion>& b);

}  // namespace pixmosa::cli

// The options that shape the produced text, shared by the orders that convert pictures.
#pragma once

#include <vector>

#include "cli/Argumentos.h"
#include "cli/Consola.h"

namespace pixmosa::cli {

// --paleta, --negativo, --fuente, --puntos: what the character tables depend on.
std::vector<Opcion> OpcionesDeTabla();

// Those of the tables, --columnas, --luminosidad and those of the methods "tono" and "formas".
std::vector<Opcion> OpcionesDeTexto();

// The name of a method's option and of a line of `comparar`, by the method's number.
inline constexpr const char* kMetodos[] = {"grises", "bordes", "antialias", "tono", "formas"};

// --metodo and --relleno, for orders that take every method.
std::vector<Opcion> OpcionesDeMetodo();

// The number of the method that the option --metodo names; `otherwise` without it.
int MetodoDe(const Argumentos& arguments, int otherwise = kGrayscale);

// A program with the settings as the options ask for them, measured; AsciiColumns from --columnas or the
// terminal. Throws ErrorDeTrabajo.
Programa PrepararPrograma(Consola& consola, const Argumentos& arguments);

// Throws ErrorDeUso where the method chooses by code and the characters are not all in the code page.
void ExigirCaracteres(const Programa& p);

// a followed by b.
std::vector<Opcion> Juntar(std::vector<Opcion> a, const std::vector<Opcion>& b);

}  // namespace pixmosa::cli

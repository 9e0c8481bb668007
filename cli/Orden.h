// An order of the command line as data: its name, its help, its options and the procedure that does it.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "cli/Argumentos.h"
#include "cli/Consola.h"

namespace pixmosa::cli {

struct Orden {
  const char* nombre;
  const char* operandos;  // as the help shows them
  const char* resumen;    // one Spanish sentence
  const char* ejemplo;    // one whole command
  std::vector<Opcion> opciones;
  int (*hacer)(Consola&, const Argumentos&);  // the exit status; throws ErrorDeUso and ErrorDeTrabajo
  std::string (*masAyuda)() = nullptr;        // more help of the order itself
};

// Every order, in the order of the help.
std::span<const Orden> Ordenes();

std::string AyudaGeneral();
std::string AyudaDe(const Orden& order);

// An option as the help shows it: its name with what its value may be, and its explanation with the bounds.
std::string Encabezado(const Opcion& option);
std::string Explicacion(const Opcion& option);

// Runs the words of a command line after the program's name; the exit status.
int Ejecutar(Consola& consola, std::span<const std::string> words);

}  // namespace pixmosa::cli

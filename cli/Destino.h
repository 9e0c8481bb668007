// Files that an order writes must not be those that it reads.
#pragma once

#include <string>

#include "cli/Argumentos.h"

namespace pixmosa::cli {

inline constexpr const char* kSobrescribir = "--sobrescribir";

Opcion OpcionDeSobrescribir();

// Throws ErrorDeUso where `file` is the file of an operand, by whatever name or link, unless --sobrescribir
// is given.
void ExigirOtroArchivo(const Argumentos& arguments, const std::string& file);

}  // namespace pixmosa::cli

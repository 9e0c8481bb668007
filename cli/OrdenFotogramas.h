#pragma once

#include "cli/Orden.h"
#include "web/FuenteGif.h"

namespace pixmosa::cli {

Orden OrdenFotogramas();

// The bytes of a GIF; "-" is standard input. Throws ErrorDeTrabajo for what is no GIF, FileError.
FuenteGif AbrirGif(Consola& consola, const std::string& operand);

}  // namespace pixmosa::cli

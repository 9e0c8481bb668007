#pragma once

#include "cli/Orden.h"

namespace pixmosa::cli {

Orden OrdenFotogramas();

// The bytes of a GIF. Throws ErrorDeTrabajo for any other file.
std::string LeerGif(Consola& consola, const std::string& operand);

}  // namespace pixmosa::cli

// A GIF as an operand.
#pragma once

#include <string>

#include "cli/Consola.h"
#include "web/OrigenGif.h"

namespace pixmosa::cli {

// The bytes of a GIF; "-" is standard input. Throws ErrorDeTrabajo for what is no GIF, FileError.
OrigenGif AbrirGif(Consola& consola, const std::string& operand);

}  // namespace pixmosa::cli

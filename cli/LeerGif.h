// A GIF as an operand.
#pragma once

#include <string>

#include "cli/Consola.h"

namespace pixmosa::cli {

// Throws ErrorDeTrabajo unless these are the first bytes of a GIF.
void ExigirGif(std::string_view start, const std::string& operand);

// The bytes of a GIF. Throws ErrorDeTrabajo for any other file.
std::string LeerGif(Consola& consola, const std::string& operand);

}  // namespace pixmosa::cli

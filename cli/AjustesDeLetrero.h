// The options that lay out and finish a banner.
#pragma once

#include <vector>

#include "cli/Argumentos.h"
#include "figlet/Letrero.h"

namespace pixmosa::cli {

// --composicion, --ancho, --alinear, --recortar, --espejo, --marco, --comentario, --degradado.
std::vector<Opcion> AjustesDeLetrero();

// What a command line asks for. Throws ErrorDeUso.
OpcionesDeLetrero LetreroPedido(const Argumentos& arguments);

}  // namespace pixmosa::cli

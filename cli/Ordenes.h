// Every order's row, each made in the file of its name.
#pragma once

#include "cli/Orden.h"

namespace pixmosa::cli {

Orden OrdenAscii();
Orden OrdenTabla();
Orden OrdenEfecto();
std::string AyudaDePasos();  // every step with its caption, range and argument
Orden OrdenComparar();
Orden OrdenWeb();
Orden OrdenFotogramas();
Orden OrdenAnim();
Orden OrdenPelicula();
Orden OrdenLetrero();
Orden OrdenFuentes();
Orden OrdenEstadisticas();

}  // namespace pixmosa::cli

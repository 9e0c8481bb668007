#pragma once

#include "cli/Orden.h"

namespace pixmosa::cli {

Orden OrdenEstadisticas();

}  // namespace pixmosa::cli

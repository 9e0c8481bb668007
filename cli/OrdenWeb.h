#pragma once

#include "cli/Orden.h"

namespace pixmosa::cli {

Orden OrdenWeb();

}  // namespace pixmosa::cli

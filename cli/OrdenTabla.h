#pragma once

#include "cli/Orden.h"

namespace pixmosa::cli {

Orden OrdenTabla();

}  // namespace pixmosa::cli

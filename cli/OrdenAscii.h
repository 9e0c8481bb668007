#pragma once

#include "cli/Orden.h"

namespace pixmosa::cli {

Orden OrdenAscii();

}  // namespace pixmosa::cli

#pragma once

#include "cli/Orden.h"

namespace pixmosa::cli {

Orden OrdenEfecto();

}  // namespace pixmosa::cli

#pragma once

#include "cli/Orden.h"

namespace pixmosa::cli {

Orden OrdenLetrero();

}  // namespace pixmosa::cli

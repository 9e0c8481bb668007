#pragma once

#include "cli/Orden.h"

namespace pixmosa::cli {

Orden OrdenFuentes();

}  // namespace pixmosa::cli

#pragma once

#include "cli/Orden.h"

namespace pixmosa::cli {

Orden OrdenAnim();

}  // namespace pixmosa::cli

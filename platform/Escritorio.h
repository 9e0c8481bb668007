// The desktop as the windows use it; real adapters in the program, recording ones in tests.
#pragma once

#include "platform/Dialogs.h"
#include "platform/Registry.h"
#include "platform/Shell.h"

namespace pixmosa {

struct Escritorio {
  Dialogs& dialogos;
  Shell& entorno;
  Registry& registro;
};

}  // namespace pixmosa

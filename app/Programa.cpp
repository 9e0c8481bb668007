#include "app/Programa.h"

namespace pixmosa {

bool CargarPaleta3x2(Programa& program) {
  try {
    program.basAscii.Palette3x2 = LoadPalette3x2(program.carpeta);
    return true;
  } catch (const Palette3x2Error& e) {
    program.plataforma.dialogos.Fail(e.what());
    return false;
  }
}

}  // namespace pixmosa

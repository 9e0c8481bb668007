// What the brush adds to the solid: fur, eyes, nose, mouth, whiskers.
#pragma once

#include "tools/muestra/Lienzo.h"

namespace pixmosa::muestra {

void PintarPelo(Lienzo& canvas);
void PintarCara(Lienzo& canvas);
void PintarBigotes(Lienzo& canvas);

}  // namespace pixmosa::muestra

// Cutting a part out of a picture.
#pragma once

#include "platform/Errores.h"
#include "platform/Picture.h"

namespace pixmosa {

struct Zona {
  int x = 0, y = 0, ancho = 0, alto = 0;  // pixels from the top left corner
};

// The pixels of a zone that lies in the picture whole and is not empty. Throws ErrorDelPrograma for another
// one.
Picture Recortada(const Picture& picture, const Zona& zone);

}  // namespace pixmosa

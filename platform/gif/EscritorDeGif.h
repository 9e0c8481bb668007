// Animated GIF files through giflib; colours chosen by libimagequant.
#pragma once

#include "platform/CodificadorDeAnimacion.h"

namespace pixmosa {

// Throws std::bad_alloc where a library finds no memory.
std::unique_ptr<CodificadorDeAnimacion> EscribirGif(Extent screen, std::span<const Colour> colours,
                                                    Salida out);

}  // namespace pixmosa

// The six modes and the exact texts that `lblModo` shows for them.
#pragma once

#include <array>

namespace pixmosa {

enum Modo { kModoGrises, kModoBordes, kModoAntialias, kModoTexto, kModoMosaico, kModoCopiaExacta };

inline constexpr std::array<const char*, 6> kModos = {
    "AsciiArt -> Escala de grises",
    "AsciiArt -> Detección de bordes",
    "AsciiArt -> Anti-aliasing",
    "AsciiArt -> Texto",
    "WebArt -> Mosaico",
    "WebArt -> Copia exacta",
};

}  // namespace pixmosa

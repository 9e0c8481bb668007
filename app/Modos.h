// The six modes: the exact texts of `lblModo`, whose position is the mode's index.
#pragma once

#include <array>
#include <string_view>

namespace pixmosa {

inline constexpr std::array<const char*, 6> kModos = {
    "AsciiArt -> Escala de grises",
    "AsciiArt -> Detección de bordes",
    "AsciiArt -> Anti-aliasing",
    "AsciiArt -> Texto",
    "WebArt -> Mosaico",
    "WebArt -> Copia exacta",
};

enum Modo { kModoGrises, kModoBordes, kModoAntialias, kModoTexto, kModoMosaico, kModoCopiaExacta };

// The index of a mode's text; 0 for any other text.
constexpr int IndiceDeModo(std::string_view text) {
  for (std::size_t i = 0; i < kModos.size(); ++i)
    if (text == kModos[i]) return static_cast<int>(i);
  return 0;
}

}  // namespace pixmosa

// Sets of characters to choose from, and what is measured of each when it is drawn smooth.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/TextSurface.h"

namespace pixmosa {

// The most characters of a set; those of a longer one that follow are left out.
inline constexpr std::size_t kMasCaracteresDeJuego = 256;

// The characters of the codes first..last of the code page.
std::u32string CaracteresDeCodigos(int first, int last);

// A set as the user writes it, UTF-8: "bloques" (block elements), "braille", "cajas" (box lines), or the
// characters themselves, in any order. Ascending, each once, with the blank; controls are left out. Empty
// where nothing but blanks is left.
std::u32string JuegoDeCaracteres(std::string_view utf8);

// The code page has all of them.
bool TodosEnLaPagina(std::u32string_view characters);

// Subcells of a cell: 2 across, 4 down, rows from the top.
inline constexpr int kSubAncho = 2, kSubAlto = 4, kSubceldas = kSubAncho * kSubAlto;

// A character as an eye sees it from afar: the light of each of its subcells, 0..1.
struct CaracterMedido {
  char32_t caracter;
  std::array<double, kSubceldas> luz;
  double media;
};

// Draws every character smooth and measures the page's light (1 - ink; `negative`: ink). Those that draw
// nothing and the soft hyphen are left out, the blank alone stays.
std::vector<CaracterMedido> MedirCaracteres(TextSurface& surface, const Font& font, Extent cell,
                                            std::u32string_view characters, bool negative);

}  // namespace pixmosa

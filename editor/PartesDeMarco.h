// Box-drawing characters as what they are made of: an arm to each side, each of a weight.
#pragma once

#include <array>

namespace pixmosa {

enum class EstiloDeMarco { Ascii, Simple, Doble, Redondo, Grueso };

// Weights of the arms up, right, down and left: 0 none, 1 light, 2 heavy, 3 double.
using Brazos = std::array<int, 4>;
inline constexpr int kArriba = 0, kDerecha = 1, kAbajo = 2, kIzquierda = 3;

// The arms of a character; none of one that has no part of a box. "+", "-" and "|" have some where `ascii`.
Brazos BrazosDe(char32_t c, bool ascii = false);

// The character with these arms; 0 where there is none.
char32_t CaracterDe(const Brazos& arms);

// What a cell that holds `there` shows when a box of a style brings it arms (any weight but 0): they join the
// ones that it has.
char32_t Unir(char32_t there, const Brazos& arms, EstiloDeMarco style);

// The nearest of ASCII for a part of a box, an arrow or a block; "?" for any other.
char EnAscii(char32_t c);

}  // namespace pixmosa

// Characters as a mirror shows them.
#pragma once

namespace pixmosa {

enum class Eje { Horizontal, Vertical };  // left to right, upside down

// The character that looks like `c` in a mirror: "/" and "\", "b" and "d", parts of boxes, blocks, braille;
// itself where there is none.
char32_t Reflejado(char32_t c, Eje axis);

}  // namespace pixmosa

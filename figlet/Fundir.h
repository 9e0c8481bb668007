// Which of two characters stands where both would, by the rules of "FIGfont Version 2".
#pragma once

#include "figlet/FuenteFiglet.h"

namespace pixmosa {

// Of neighbours in a line: `left` and `right` of each other, neither blank. `rules`: the horizontal ones that
// count; without any of them universal smushing, where the character typed later stands in front, and any
// character before a hard blank. 0 where they cannot share a place.
char32_t FundirHorizontal(char32_t left, char32_t right, std::int32_t rules, bool leftwards);

// Of characters in lines one below the other, neither blank nor hard blank. Vertical bars, which may share
// many places, are for the caller.
char32_t FundirVertical(char32_t upper, char32_t lower, std::int32_t rules);

}  // namespace pixmosa

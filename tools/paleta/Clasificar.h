// Choosing a character for each of the 64 patterns of two by three pixels from the ink that the printable
// characters put in the six parts of their cell.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace pixmosa::paleta {

inline constexpr int kFirst = 32, kLast = 126, kPatterns = 64, kParts = 6;

// Ink of each character in thousandths of the part's area, averaged over the fonts: top left, top right,
// middle left, ... bottom right.
using Ink = std::array<std::array<int, kParts>, kLast - kFirst + 1>;

// The character of each pattern; bit 5 of the pattern is the top left part, bit 0 the bottom right.
using Choice = std::array<char, kPatterns>;

// The measured ink as text, one character a line with its six numbers, and back. LeerTinta takes what
// EscribirTinta gave.
std::string EscribirTinta(const Ink& ink);
Ink LeerTinta(std::string_view text);

// The character whose mirror image in a fixed-pitch font c is, c itself where it is symmetric, 0 where there
// is none.
char Espejo(char c);

// The best character of each pattern. A pattern and its mirror image are chosen together and take mirrored
// characters.
Choice Elegir(const Ink& ink);

// The pattern file with a choice.
std::string ArchivoDePaleta(const Choice& choice);

// For people: each pattern, its character, and the best ones by themselves with their distances.
std::string Clasificacion(const Ink& ink, const Choice& choice);

}  // namespace pixmosa::paleta

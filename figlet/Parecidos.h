// Characters that the 8-bit code page lacks, by one of its characters that looks alike.
#pragma once

namespace pixmosa {

// For the blocks, shades and box lines of U+2500 to U+259F the character nearest in shape and weight, for the
// blanks of other widths a blank; "#" for any other.
char Parecido(char32_t c);

}  // namespace pixmosa

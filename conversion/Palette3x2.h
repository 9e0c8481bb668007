// The pattern file: which character stands for each block of two pixels across by three down.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/Errores.h"

namespace pixmosa {

// The only failure of the pattern file, whatever its cause; what() is the text for the user, in UTF-8.
class Palette3x2Error : public ErrorDelPrograma {
 public:
  Palette3x2Error();
};

// Characters by pattern. Bit 5 is the block's top left pixel, bit 4 the top right, ... bit 0 the bottom
// right; 1 is ink. A pattern that the file lacks, or whose character line is empty, has none.
struct Palette3x2 {
  std::array<std::optional<char>, 64> Characters{};
};

// Reads records of five lines: three rows of the pattern ("@" ink, "." paper), the character, a separator
// that may be missing at the end. Rows count with their first two characters. Throws Palette3x2Error for a
// record cut short or a pattern that stands twice (letters compared without regard to case).
Palette3x2 ParsePalette3x2(std::string_view file);

// "Paleta 3x2.txt" of the program's folder. Throws Palette3x2Error.
Palette3x2 LoadPalette3x2(const std::filesystem::path& programFolder);

}  // namespace pixmosa

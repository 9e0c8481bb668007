// Any bytes as the pattern file: a palette or its one failure. A palette of what can be read says the same
// once it is written out and read again.
#include "conversion/Palette3x2.h"
#include "tests/fuzz/Fuzz.h"

void Fuzz(std::string_view bytes) try {
  const Palette3x2 palette = ParsePalette3x2(bytes);
  std::string file;
  for (std::size_t p = 0; p < palette.Characters.size(); ++p) {
    if (!palette.Characters[p]) continue;
    for (int bit = 5; bit >= 0; --bit) {
      file += p >> bit & 1 ? '@' : '.';
      if (bit % 2 == 0) file += "\r\n";
    }
    file += *palette.Characters[p];
    file += "\r\n\r\n";
  }
  try {
    Check(ParsePalette3x2(file).Characters == palette.Characters);
  } catch (const Palette3x2Error&) {
    Check(false);
  }
} catch (const Palette3x2Error&) {
}

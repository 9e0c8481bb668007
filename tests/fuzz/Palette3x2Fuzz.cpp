// Any bytes as the pattern file: a palette or its one failure. A palette of what can be read says the same
// once it is written out and read again.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "conversion/Palette3x2.h"

using namespace pixmosa;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Palette3x2 palette;
  try {
    palette = ParsePalette3x2({reinterpret_cast<const char*>(data), size});
  } catch (const Palette3x2Error&) {
    return 0;
  }
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
  if (ParsePalette3x2(file).Characters != palette.Characters) std::abort();
  return 0;
}

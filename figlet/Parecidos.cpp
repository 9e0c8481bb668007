#include "figlet/Parecidos.h"

#include <string_view>

namespace pixmosa {
namespace {

// U+2500 on: light and heavy lines, dashed ones (\xA6 is the broken bar), corners, tees and crosses.
constexpr std::string_view kLines =
    "--||--\xA6\xA6--\xA6\xA6"
    "++++++++++++++++++++++++++++++++++++++++++++++++++++++++++++++++"
    "--\xA6\xA6"
    "=|+++++++++++++++++++++++++++"  // double lines
    "..'`/\\X"                       // rounded corners and diagonals
    "-'-,-'-,-|-|";                  // lines of half a cell

// U+2580 on: halves and eighths from below (\xAF is the macron), from the left, shades, edges, quadrants.
constexpr std::string_view kBlocks =
    "\"___oo8#"
    "###[[|||"
    "]:x%\xAF|"
    ",.`L\\F7'/J";

}  // namespace

char Parecido(char32_t c) {
  static_assert(kLines.size() == 128 && kBlocks.size() == 32);
  if (c >= 0x2500 && c < 0x2580) return kLines[c - 0x2500];
  if (c >= 0x2580 && c < 0x25A0) return kBlocks[c - 0x2580];
  const bool blank = (c >= 0x2000 && c <= 0x200A) || c == 0x202F || c == 0x205F || c == 0x3000;
  return blank ? ' ' : '#';
}

}  // namespace pixmosa

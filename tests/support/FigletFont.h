// Small FIGlet fonts made by the test.
#pragma once

#include <string>

#include "figlet/basFigLet.h"

namespace pixmosa::test {

// A font in the reader's own form: two rows a character, the character itself and its row number. "$" as hard
// blank.
inline std::string OwnFont(const std::string& end = "\r\n") {
  std::string font = "flf2a$ 2 1 5 -1 1" + end + "Comentario" + end;
  for (int c = 32; c < 256; ++c) {
    const char letter = c == ' ' ? '$' : static_cast<char>(c);
    font += std::string(1, letter) + "1@" + end + std::string(1, letter) + "2@@" + end;
  }
  return font;
}

// A standard font of two rows: each required character shows itself and a hard blank, and `more` follows.
inline std::string StandardFont(const std::string& more = {}, const std::string& hardBlank = "#",
                                const std::string& mark = "@", const std::string& end = "\n") {
  std::string font =
      "flf2a" + hardBlank + " 2 1 8 15 2 0 143 3" + end + "Hecha, para probar" + end + "$ y @" + end;
  for (char c = 32; c < 127; ++c) font += c + mark + end + hardBlank + "_" + mark + mark + end;
  return font + more;
}

// What the reader shows of a font for a text, behind what it complains about.
inline std::string Shown(const std::string& bytes, const std::string& text) {
  BasFigLet font;
  std::string failures;
  LoadFontBytes(font, bytes, [&](const std::string& f) { failures += f; });
  return failures + RenderBanner(font, text);
}

}  // namespace pixmosa::test

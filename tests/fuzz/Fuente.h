// What holds for every font that is rewritten.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>

#include "figlet/Reescribir.h"
#include "figlet/basFigLet.h"

// Rewrites bytes or has them refused with a sentence. What is rewritten is read whole, in proportion to the
// input, shows nothing that would break a line, and stays as it is when it is rewritten again.
inline void RewriteAny(std::string_view bytes) {
  const auto check = [](bool holds) {
    if (!holds) std::abort();
  };
  try {
    const pixmosa::FuenteReescrita own = pixmosa::ReescribirFuente(bytes, "f");
    check(own.bytes.size() <= 2 * bytes.size() + 224 * 256 * 4 + 200);
    pixmosa::BasFigLet font;
    pixmosa::LoadFontBytes(font, own.bytes, [](const std::string&) { std::abort(); });
    check(font.NextCode == 256);
    for (const auto& glyph : font.Glyphs)
      for (const std::string& row : glyph) check(row.find_first_of("\r\n") == std::string::npos);
    check(pixmosa::ReescribirFuente(own.bytes, "f").bytes == own.bytes);
  } catch (const pixmosa::FuenteRechazada& e) {
    check(std::string_view(e.what()).ends_with('.'));
  }
}

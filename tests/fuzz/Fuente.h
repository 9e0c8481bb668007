// What holds for every font that is rewritten.
#pragma once

#include "figlet/Reescribir.h"
#include "figlet/basFigLet.h"
#include "tests/fuzz/Fuzz.h"

// Rewrites bytes or has them refused with a sentence. What is rewritten is read whole, in proportion to the
// input, shows nothing that would break a line, and stays as it is when it is rewritten again.
inline void RewriteAny(std::string_view bytes) {
  try {
    const FuenteReescrita own = ReescribirFuente(bytes, "f");
    Check(own.bytes.size() <= 2 * bytes.size() + 224 * 256 * 4 + 200);
    BasFigLet font;
    LoadFontBytes(font, own.bytes, [](const std::string&) { std::abort(); });
    Check(font.NextCode == 256);
    for (const auto& glyph : font.Glyphs)
      for (const std::string& row : glyph) Check(row.find_first_of("\r\n") == std::string::npos);
    Check(ReescribirFuente(own.bytes, "f").bytes == own.bytes);
  } catch (const FuenteRechazada& e) {
    Check(std::string_view(e.what()).ends_with('.'));
  }
}

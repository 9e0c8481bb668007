// Any bytes as a font of the reader's own form: the table and the banner stay in proportion to the input.
#include "figlet/basFigLet.h"
#include "tests/fuzz/Fuzz.h"

void Fuzz(std::string_view bytes) {
  BasFigLet font;
  LoadFontBytes(font, bytes, [](const std::string&) {});
  std::size_t rows = 0;
  for (const auto& glyph : font.Glyphs) rows += glyph.size();
  Check(rows <= bytes.size() + 1);
  RenderBanner(font, bytes.substr(0, 64));
}

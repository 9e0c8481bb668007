// Any bytes as a font of the reader's own form: the table and the banner stay in proportion to the input.
#include <cstdint>
#include <cstdlib>

#include "figlet/basFigLet.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  pixmosa::BasFigLet font;
  pixmosa::LoadFontBytes(font, bytes, [](const std::string&) {});
  std::size_t rows = 0;
  for (const auto& glyph : font.Glyphs) rows += glyph.size();
  if (rows > size + 1) std::abort();
  pixmosa::RenderBanner(font, bytes.substr(0, 64));
  return 0;
}

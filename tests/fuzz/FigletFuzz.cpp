// Any bytes as a font, as the specified reader has it and straight from its file: the table and the banner
// stay in proportion to the input, and no layout makes a banner wider or higher than the one before it.
#include "figlet/Letrero.h"
#include "figlet/Reescribir.h"
#include "tests/fuzz/Fuzz.h"

namespace {

void Lay(const FuenteEnUso& font, std::string_view text) {
  std::size_t columns = SIZE_MAX, rows = SIZE_MAX;
  for (const Composicion how : {Composicion::Completo, Composicion::Juntar, Composicion::Fundir}) {
    const Dibujo banner = font.Dibujar(text, {{how}, {}});
    Check(banner.Columnas() <= columns && banner.filas.size() <= rows);
    columns = banner.Columnas();
    rows = banner.filas.size();
  }
  font.Dibujar(text, {{Composicion::Fuente, 20, Lado::Derecha},
                      {true, true, MarcoDeLetrero::Linea, Comentario::Bloque}});
}

}  // namespace

void Fuzz(std::string_view bytes) {
  BasFigLet font;
  LoadFontBytes(font, bytes, [](const std::string&) {});
  std::size_t rows = 0;
  for (const auto& glyph : font.Glyphs) rows += glyph.size();
  Check(rows <= bytes.size() + 1);
  const std::string_view text = bytes.substr(0, 64);
  RenderBanner(font, text);
  if (font.TableRows > 64) return;  // high ones take their time
  // As it is padded: where a letter's rows differ in length the specified layout may be narrower.
  Lay(FuenteEnUso(FuenteLeida(font)), text.substr(0, 16));
  try {
    const FuenteEnUso direct(LeerFuente(bytes, "f"));
    Lay(direct, text.substr(0, 16));
    CompletaParaEspanol(direct.Fuente());
  } catch (const FuenteRechazada& e) {
    Check(std::string_view(e.what()).ends_with('.'));
  }
}

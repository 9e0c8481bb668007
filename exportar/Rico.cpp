#include "exportar/Rico.h"

#include "exportar/Texto.h"
#include "platform/CodePage.h"

namespace pixmosa {

std::string TextoRico(const Dibujo& drawing, const OpcionesDeExportar& options, const Font& font) {
  std::string name;
  for (std::string_view rest = font.name; !rest.empty();)
    if (const char32_t c = NextUtf8(rest); c != U'\'') AppendEscapado(name, c);
  std::string s = "<pre style=\"font-family:'" + name +
                  "',monospace;font-size:" + std::to_string(font.points) +
                  "pt;line-height:1;color:" + Hexadecimal(options.tinta) +
                  ";background:" + Hexadecimal(options.papel) + "\">";
  for (const Fila& row : drawing.filas) {
    if (&row != drawing.filas.data()) s += "<br>";
    for (const Tramo& run : TramosDe(row, options.color)) {
      std::string style;
      if (run.tinta != kNoColour) style += "color:" + Hexadecimal(run.tinta);
      if (run.papel != kNoColour) style += ";background:" + Hexadecimal(run.papel);
      if (!style.empty()) s += "<span style=\"" + style + "\">";
      for (std::size_t x = run.desde; x < run.hasta; ++x) AppendEscapado(s, Dibujable(row[x].caracter));
      if (!style.empty()) s += "</span>";
    }
  }
  return s + "</pre>";
}

}  // namespace pixmosa

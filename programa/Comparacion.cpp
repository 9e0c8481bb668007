#include "programa/Comparacion.h"

#include "platform/Dibujo.h"

namespace pixmosa {

Semejanza Puntuar(const Programa& p, std::string_view utf8) {
  const BasAscii& ascii = p.basAscii;
  const Extent cell{ascii.CellWidth, ascii.CellHeight};
  const Extent size = ResizedExtent(ascii, p.imagen.picMain.Size(), kFormas);
  std::vector<std::u32string> rows;
  for (const Fila& row : DibujoDeUtf8(utf8).filas) {
    std::u32string& characters = rows.emplace_back();
    for (const Celda& c : row) characters += c.caracter;
  }
  const Malla text =
      LuzDeTexto(p.superficie, p.ajustes.font, cell, rows, size, ascii.CountedColour == kBlack);
  return Comparar(LuzMedia(p.imagen.picMain, {size.width * kSubAncho, size.height * kSubAlto}), text, cell);
}

}  // namespace pixmosa

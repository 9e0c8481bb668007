#include <optional>

#include "exportar/Escritores.h"
#include "platform/CodePage.h"

namespace pixmosa {
namespace {

// The rows in the 8-bit code page; nothing where a character is not in it.
std::optional<std::string> Bytes(const Dibujo& drawing) {
  std::string bytes;
  for (const Fila& row : drawing.filas) {
    if (&row != drawing.filas.data()) bytes += "\r\n";
    for (const Celda& cell : row) {
      const std::optional<unsigned char> byte = ByteOfUnicode(cell.caracter);
      if (!byte) return std::nullopt;
      bytes += static_cast<char>(*byte);
    }
  }
  return bytes;
}

}  // namespace

std::string ComoTxt(const Dibujo& drawing, const OpcionesDeExportar&, const Medios& means) {
  if (const std::optional<std::string> bytes = Bytes(drawing)) return means.guardarTexto(*bytes);
  std::string utf8;
  for (const Fila& row : drawing.filas) {
    for (const Celda& cell : row) AppendUtf8(utf8, cell.caracter);
    utf8 += '\n';
  }
  return utf8;
}

}  // namespace pixmosa

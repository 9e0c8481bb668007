#include "conversion/TextoGuardado.h"

#include "platform/CodePage.h"

namespace pixmosa {

std::string PanelFuente(const Font& font) {
  return "Fuente: " + font.name;
}

std::string PanelTamaño(const Font& font) {
  return "Tamaño: " + std::to_string(font.points);
}

std::string TextoGuardado(const Font& font, std::string_view text) {
  std::string bytes =
      "Ascii Art generado por Pixmosa. " + BytesOfUtf8(PanelFuente(font) + " " + PanelTamaño(font)) + "\r\n";
  bytes += text;
  bytes += "\r\n";
  return bytes;
}

}  // namespace pixmosa

#include "conversion/TextoGuardado.h"

#include "platform/CodePage.h"

namespace pixmosa {
namespace {

// The header line, UTF-8.
std::string Cabecera(const Font& font) {
  return "Ascii Art generado por Pixmosa. " + PanelFuente(font) + " " + PanelTamaño(font) + "\r\n";
}

std::string ConFinal(std::string header, std::string_view text) {
  header += text;
  return header += "\r\n";
}

}  // namespace

std::string PanelFuente(const Font& font) {
  return "Fuente: " + font.name;
}

std::string PanelTamaño(const Font& font) {
  return "Tamaño: " + std::to_string(font.points);
}

std::string TextoGuardado(const Font& font, std::string_view text) {
  return ConFinal(BytesOfUtf8(Cabecera(font)), text);
}

std::string TextoGuardadoUtf8(const Font& font, std::string_view utf8) {
  return ConFinal(Cabecera(font), utf8);
}

}  // namespace pixmosa

// Every step of the order `efecto`, from the effect table and the menu.
#include <string_view>

#include "cli/Ordenes.h"
#include "effects/EntradasDeImagen.h"
#include "effects/basFiltrosConfig.h"
#include "platform/CodePage.h"
#include "platform/Colour.h"
#include "programa/Pasos.h"

namespace pixmosa::cli {
namespace {

std::string AyudaDelValor(int effect) {
  const EffectConfig& e = *Efecto(effect);
  if (e.argumento == Argumento::Ninguno) return "";
  std::string s = "valor de " + std::to_string(e.Min) + " a " + std::to_string(e.Max);
  if (e.argumento == Argumento::Exigido) return s + ", obligatorio";
  if (e.argumento == Argumento::Color) s += " (rojo + 256 verde + 65536 azul)";
  const std::int32_t otherwise = e.argumento == Argumento::Gris ? SplitColour(e.menu).red : e.menu;
  return s + "; si falta, " + std::to_string(otherwise);
}

void Rellenar(std::string& line, std::size_t columns) {
  std::size_t used = 0;
  for (std::string_view rest = line; !rest.empty(); ++used) NextUtf8(rest);
  line.append(columns > used ? columns - used : 1, ' ');
}

std::string Linea(const std::string& number, const std::string& name, const std::string& caption,
                  const std::string& value) {
  std::string s = std::string(number.size() < 2 ? 4 - number.size() : 2, ' ') + number;
  Rellenar(s, 6);
  s += name;
  Rellenar(s, 33);
  s += "\"" + caption + "\"";
  if (!value.empty()) {
    Rellenar(s, 60);
    s += value;
  }
  return s + "\n";
}

}  // namespace

std::string AyudaDePasos() {
  std::string s =
      "Pasos, que se dan de izquierda a derecha; cada uno por su número o por su nombre, con =VALOR donde lo "
      "lleva:\n";
  for (int n = 1; n <= kEfectos; ++n)
    s += Linea(std::to_string(n), NombreDeOrden(Efecto(n)->caption), Efecto(n)->caption, AyudaDelValor(n));
  for (const EntradaDeImagen& e : EntradasDeImagen())
    if (e.accion == Accion::Efecto && std::string_view(e.caption) != Efecto(e.efecto)->caption)
      s += Linea("", NombreSinComillas(e.caption), e.caption,
                 "lo mismo que " + std::to_string(e.efecto) + "=" + std::to_string(e.argumento) +
                     " y que \"" + NombreDeOrden(e.caption) + "\"");
  for (const Giro& g : Giros()) s += Linea("", g.orden, g.caption, "");
  s += Linea("", kRecortar, "Recortar", "valor X,Y,ANCHO,ALTO en píxeles, obligatorio");
  return s;
}

}  // namespace pixmosa::cli

#include "cli/OpcionesDeTexto.h"

#include "platform/qt/QtFont.h"
#include "programa/Ajustes.h"

namespace pixmosa::cli {
namespace {

constexpr int kMasColumnas = 20000, kMasPuntos = 300;

Font FuenteDe(Consola& consola, const Argumentos& arguments) {
  Font font;
  font.points = arguments.Entero("--puntos", font.points);
  const std::optional<std::string> name = arguments.Texto("--fuente");
  if (!name || *name == font.name) return font;
  consola.Superficie();
  if (!FontInstalled(*name))
    throw ErrorDeTrabajo("No hay ninguna fuente instalada con el nombre \"" + *name + "\".");
  font.name = *name;
  return font;
}

}  // namespace

std::vector<Opcion> Juntar(std::vector<Opcion> a, const std::vector<Opcion>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

std::vector<Opcion> OpcionesDeTabla() {
  return {
      {"--paleta", Tipo::Entero, "N", "caracteres: 0 extendido, 1 clásico, 2 letras, 3 números; si falta, 0",
       0, 3},
      {"--negativo", Tipo::Interruptor, "", "para leer sobre fondo oscuro: cuenta la tinta en vez del papel"},
      {"--fuente", Tipo::Texto, "NOMBRE", "fuente con la que se leerá; si falta, Lucida Console"},
      {"--puntos", Tipo::Entero, "N", "tamaño de la fuente; si falta, 6", 1, kMasPuntos}};
}

std::vector<Opcion> OpcionesDeTexto() {
  return Juntar({{"--columnas", Tipo::Entero, "N", "caracteres por fila; si falta, los del terminal u 80", 1,
                  kMasColumnas},
                 {"--luminosidad", Tipo::Entero, "N", "aclara u oscurece; si falta, 0", -100, 100}},
                OpcionesDeTabla());
}

Programa PrepararPrograma(Consola& consola, const Argumentos& arguments) {
  Programa p = consola.NuevoPrograma();
  p.ajustes.font = FuenteDe(consola, arguments);
  p.ajustes.palette = arguments.Entero("--paleta", p.ajustes.palette);
  p.ajustes.luminosity = arguments.Entero("--luminosidad", p.ajustes.luminosity);
  p.ajustes.relleno = arguments.Tiene("--relleno");
  p.basAscii.CountedColour = arguments.Tiene("--negativo") ? kBlack : kWhite;
  Medir(p);
  p.basAscii.AsciiColumns =
      arguments.Tiene("--columnas") ? arguments.Entero("--columnas", 0) : consola.AnchoDeTerminal();
  return p;
}

}  // namespace pixmosa::cli

#include <climits>

#include "cli/Destino.h"
#include "cli/Ordenes.h"
#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/Palabras.h"
#include "web/basWeb.h"

namespace pixmosa::cli {
namespace {

void PonerBordes(WebSettings& settings, const std::string& text) {
  for (const std::string& side : Separar(text)) {
    if (side == "arriba") {
      settings.bordeArriba = true;
    } else if (side == "abajo") {
      settings.bordeAbajo = true;
    } else if (side == "derecha") {
      settings.bordeDerecha = true;
    } else if (side == "izquierda") {
      settings.bordeIzquierda = true;
    } else {
      throw ErrorDeUso("la opción --bordes espera arriba, abajo, derecha o izquierda, no \"" + side + "\"");
    }
  }
}

int Hacer(Consola& consola, const Argumentos& arguments) {
  arguments.ExigirOperandos(1, 1, "la imagen");
  const std::string file = arguments.Exigir("-o");
  WebSettings settings;
  settings.exactCopy = arguments.Tiene("--copia-exacta");
  settings.tamaño = arguments.Entero("--detalle", settings.tamaño);
  if (const auto text = arguments.Texto("--texto")) {
    settings.paleta = 1;
    settings.textoPaleta = BytesOfUtf8(*text);
  }
  if (const auto sides = arguments.Texto("--bordes")) PonerBordes(settings, *sides);
  BasWeb web;
  if (const auto colour = arguments.Color("--fondo")) web.Fondo = TextoDeFondo(*colour);
  Random random;
  if (arguments.Tiene("--semilla")) random.Seed(static_cast<std::uint64_t>(arguments.Entero("--semilla", 0)));

  const Picture picture = consola.LeerImagen(arguments.Operandos()[0]);
  PrepararPaleta(web, settings, random);
  EscribirWebArt(web, settings, picture, file);
  return 0;
}

}  // namespace

Orden OrdenWeb() {
  return {"web",
          "IMAGEN -o PAGINA.html",
          "Escribe una página HTML en la que cada carácter lleva el color de la imagen.",
          "pixmosa-cli web foto.jpg -o foto.html --texto \"hola \"",
          {{"-o", Tipo::Texto, "PAGINA.html", "la página que se escribe"},
           OpcionDeSobrescribir(),
           {"--copia-exacta", Tipo::Interruptor, "", "una copia de la imagen; si falta, un mosaico"},
           {"--detalle", Tipo::Entero, "N", "5 escribe cada píxel, 1 uno de cada cinco; si falta, 3", 1, 5},
           {"--texto", Tipo::Texto, "TEXTO", "caracteres del mosaico; si falta, ceros y unos al azar"},
           {"--bordes", Tipo::Texto, "LISTA", "en la copia exacta: arriba,abajo,derecha,izquierda"},
           {"--fondo", Tipo::Texto, "R,G,B", "color del fondo; si falta, 0,0,0"},
           {"--semilla", Tipo::Entero, "N", "repite los mismos ceros y unos", 0, INT_MAX}},
          Hacer};
}

}  // namespace pixmosa::cli

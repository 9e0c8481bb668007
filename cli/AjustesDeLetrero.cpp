#include "cli/AjustesDeLetrero.h"

#include <algorithm>

namespace pixmosa::cli {
namespace {

constexpr int kMasAncho = 20'000;

const std::vector<const char*> kComposiciones = {"completo", "juntar", "fundir", "fuente"},
                               kLados = {"izquierda", "centro", "derecha"},
                               kMarcos = {"linea", "doble", "estrellas"},
                               kComentarios = {"c", "sh", "sql", "bloque"};

// The place of an option's value among the choices; -1 without the option.
int Lugar(const Argumentos& arguments, const char* option, const std::vector<const char*>& choices) {
  const auto value = arguments.Texto(option);
  if (!value) return -1;
  return static_cast<int>(std::ranges::find(choices, *value) - choices.begin());
}

// "R,G,B:R,G,B" or "arcoiris", each with ":filas" behind or not.
std::optional<Degradado> DegradadoPedido(const Argumentos& arguments) {
  constexpr const char* kOpcion = "--degradado";
  const auto value = arguments.Texto(kOpcion);
  if (!value) return std::nullopt;
  constexpr std::string_view kFilas = ":filas";
  Degradado colours;
  colours.haciaAbajo = value->ends_with(kFilas);
  const std::string text = value->substr(0, value->size() - (colours.haciaAbajo ? kFilas.size() : 0));
  colours.arcoiris = text == "arcoiris";
  if (colours.arcoiris) return colours;
  const std::size_t colon = text.find(':');
  const auto from = ColorDeTexto(text.substr(0, colon));
  const auto to = colon == std::string::npos ? std::nullopt : ColorDeTexto(text.substr(colon + 1));
  if (!from || !to)
    throw ErrorDeUso("la opción --degradado espera dos colores, como 255,0,0:0,0,255, o arcoiris, no \"" +
                     *value + "\"");
  colours.desde = *from;
  colours.hasta = *to;
  return colours;
}

}  // namespace

std::vector<Opcion> AjustesDeLetrero() {
  return {{"--composicion", Tipo::Eleccion, "",
           "las letras a todo su ancho, juntas, fundidas o como diga la fuente; si falta, completo", 0, 0,
           kComposiciones},
          {"--ancho", Tipo::Entero, "N", "parte el texto por palabras en N columnas; si falta o es 0, no", 0,
           kMasAncho},
          {"--alinear", Tipo::Eleccion, "", "el lado de cada línea, en el propio texto", 0, 0, kLados},
          {"--recortar", Tipo::Interruptor, "", "sin las filas y columnas en blanco de alrededor"},
          {"--espejo", Tipo::Interruptor, "", "de derecha a izquierda, como en un espejo"},
          {"--marco", Tipo::Eleccion, "", "un marco alrededor", 0, 0, kMarcos},
          {"--comentario", Tipo::Eleccion, "", "como comentario de un programa: //, #, -- o /* */", 0, 0,
           kComentarios},
          {"--degradado", Tipo::Texto, "COLORES",
           "de un color a otro por columnas, R,G,B:R,G,B, o arcoiris; con \":filas\" detrás, por filas; "
           "no en txt"}};
}

OpcionesDeLetrero LetreroPedido(const Argumentos& arguments) {
  OpcionesDeLetrero o;
  const int layout = Lugar(arguments, "--composicion", kComposiciones),
            side = Lugar(arguments, "--alinear", kLados);
  o.composicion.composicion = static_cast<Composicion>(std::max(layout, 0));
  o.composicion.ancho = arguments.Entero("--ancho", 0);
  if (side >= 0) o.composicion.alinear = static_cast<Lado>(side);
  o.acabado.recortar = arguments.Tiene("--recortar");
  o.acabado.espejo = arguments.Tiene("--espejo");
  o.acabado.marco = static_cast<MarcoDeLetrero>(Lugar(arguments, "--marco", kMarcos) + 1);
  o.acabado.comentario = static_cast<Comentario>(Lugar(arguments, "--comentario", kComentarios) + 1);
  o.acabado.degradado = DegradadoPedido(arguments);
  return o;
}

}  // namespace pixmosa::cli

#include "cli/OpcionesDeTexto.h"

#include <algorithm>
#include <charconv>

#include "platform/qt/QtFont.h"
#include "programa/Ajustes.h"

namespace pixmosa::cli {
namespace {

constexpr int kMasColumnas = 20000, kMasPuntos = 300;
constexpr double kMenorProporcion = 0.1, kMayorProporcion = 10;

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

// A positive number with a point or a comma.
double Proporcion(const Argumentos& arguments) {
  std::optional<std::string> text = arguments.Texto("--proporcion");
  if (!text) return 0;
  const std::string given = *text;
  std::replace(text->begin(), text->end(), ',', '.');
  double value = 0;
  const char* end = text->data() + text->size();
  const auto [stop, error] = std::from_chars(text->data(), end, value);
  if (error != std::errc() || stop != end || !(value >= kMenorProporcion && value <= kMayorProporcion))
    throw ErrorDeUso("la opción --proporcion espera un número de 0,1 a 10, no \"" + given + "\"");
  return value;
}

std::u32string Caracteres(const Argumentos& arguments) {
  const std::optional<std::string> text = arguments.Texto("--caracteres");
  if (!text) return {};
  std::u32string set = JuegoDeCaracteres(*text);
  if (set.empty()) throw ErrorDeUso("la opción --caracteres necesita algún carácter que se vea");
  return set;
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

std::vector<Opcion> OpcionesDeMetodo() {
  return {{"--metodo",
           Tipo::Eleccion,
           "",
           "el método; si falta, grises",
           0,
           0,
           {std::begin(kMetodos), std::end(kMetodos)}},
          {"--relleno", Tipo::Interruptor, "", "con bordes: rellena de \":\" el interior de las formas"}};
}

std::vector<Opcion> OpcionesDeTexto() {
  return Juntar(
      Juntar({{"--columnas", Tipo::Entero, "N", "caracteres por fila; si falta, los del terminal u 80", 1,
               kMasColumnas},
              {"--luminosidad", Tipo::Entero, "N", "aclara u oscurece; si falta, 0", -100, 100}},
             OpcionesDeTabla()),
      {{"--caracteres", Tipo::Texto, "TEXTO",
        "los caracteres que se usan, en vez de --paleta; o bloques, braille, cajas"},
       {"--proporcion", Tipo::Texto, "A",
        "alto entre ancho del carácter donde se leerá, como 2; si falta, el de la fuente"},
       {"--nitidez", Tipo::Entero, "N", "con formas: peso de la forma frente al tono; si falta, 50", 0, 100},
       {"--contraste-local", Tipo::Entero, "N", "con formas y tono: realza los detalles; si falta, 40", 0,
        100},
       {"--sin-ajuste", Tipo::Interruptor, "", "con formas y tono: no estira los tonos de la imagen"}});
}

void ExigirCaracteres(const Programa& p) {
  if (!EsDeFormas(p.ajustes.conversion) && !TodosEnLaPagina(p.ajustes.caracteres))
    throw ErrorDeUso("esos caracteres necesitan --metodo formas o --metodo tono");
}

int MetodoDe(const Argumentos& arguments, int otherwise) {
  const std::optional<std::string> name = arguments.Texto("--metodo");
  if (!name) return otherwise;
  return static_cast<int>(std::find(std::begin(kMetodos), std::end(kMetodos), *name) - std::begin(kMetodos));
}

Programa PrepararPrograma(Consola& consola, const Argumentos& arguments) {
  Programa p = consola.NuevoPrograma();
  p.ajustes.font = FuenteDe(consola, arguments);
  p.ajustes.palette = arguments.Entero("--paleta", p.ajustes.palette);
  p.ajustes.luminosity = arguments.Entero("--luminosidad", p.ajustes.luminosity);
  p.ajustes.relleno = arguments.Tiene("--relleno");
  p.ajustes.conversion = MetodoDe(arguments);
  p.ajustes.caracteres = Caracteres(arguments);
  p.ajustes.formas = {arguments.Entero("--nitidez", p.ajustes.formas.nitidez),
                      arguments.Entero("--contraste-local", p.ajustes.formas.contrasteLocal),
                      !arguments.Tiene("--sin-ajuste")};
  p.basAscii.Proporcion = Proporcion(arguments);
  p.basAscii.CountedColour = arguments.Tiene("--negativo") ? kBlack : kWhite;
  Medir(p);
  p.basAscii.AsciiColumns =
      arguments.Tiene("--columnas") ? arguments.Entero("--columnas", 0) : consola.AnchoDeTerminal();
  return p;
}

}  // namespace pixmosa::cli

#include "cli/OpcionesDeDibujo.h"

#include <filesystem>

#include "conversion/TextoGuardado.h"
#include "platform/gif/EscritorDeGif.h"
#include "platform/png/Png.h"

namespace pixmosa::cli {
namespace {

constexpr const char *kTodos = "todos", *kDoscientos = "256", *kDieciseis = "16";

std::vector<const char*> Terminaciones() {
  std::vector<const char*> names;
  for (const Formato& f : Formatos()) names.push_back(f.terminacion);
  return names;
}

// --formato, or the ending of -o; text for an unknown one and for standard output.
const Formato* FormatoPedido(const Argumentos& arguments) {
  if (const auto name = arguments.Texto("--formato")) return FormatoDe(*name);
  const std::string ending = std::filesystem::path(arguments.Texto("-o").value_or("")).extension().string();
  const Formato* found = ending.empty() ? nullptr : FormatoDe(ending.substr(1));
  return found ? found : Formatos().data();
}

ColoresDeTerminal ColoresPedidos(const Argumentos& arguments) {
  const std::string name = arguments.Texto("--colores").value_or(kTodos);
  return name == kDoscientos  ? ColoresDeTerminal::Doscientos
         : name == kDieciseis ? ColoresDeTerminal::Dieciseis
                              : ColoresDeTerminal::Todos;
}

OpcionesDeExportar Leer(const Argumentos& arguments) {
  const bool negative = arguments.Tiene("--negativo");
  OpcionesDeExportar o;
  o.titulo = arguments.Texto("--titulo").value_or("");
  o.papelPedido = arguments.Tiene("--fondo");
  o.tintaPedida = arguments.Tiene("--tinta");
  o.papel = arguments.Color("--fondo").value_or(negative ? kBlack : kWhite);
  o.tinta = arguments.Color("--tinta").value_or(negative ? kWhite : kBlack);
  o.color = arguments.Tiene("--color");
  o.sinImagenes = arguments.Tiene("--sin-imagenes");
  o.trazos = arguments.Tiene("--trazos");
  o.escala = arguments.Entero("--escala", o.escala);
  o.colores = ColoresPedidos(arguments);
  return o;
}

}  // namespace

std::vector<Opcion> OpcionesDeDibujo() {
  return {
      {"--formato", Tipo::Eleccion, "", "el formato; si falta, el de la terminación de -o, o txt", 0, 0,
       Terminaciones()},
      {"--fondo", Tipo::Texto, "R,G,B", "color del papel; si falta, blanco, o negro con --negativo"},
      {"--tinta", Tipo::Texto, "R,G,B", "color de la tinta; si falta, negro, o blanco con --negativo"},
      {"--titulo", Tipo::Texto, "TEXTO", "en html y svg: el título; si falta, el nombre de lo convertido"},
      {"--sin-imagenes", Tipo::Interruptor, "", "en html: los colores van en el texto, sin imagen de datos"},
      {"--trazos", Tipo::Interruptor, "", "en svg: el contorno de cada letra; no hace falta la fuente"},
      {"--escala", Tipo::Entero, "N", "en png: veces el tamaño de la fuente; si falta, 2", 1, 8},
      {"--colores",
       Tipo::Eleccion,
       "",
       "en ans: cuántos colores; si falta, todos",
       0,
       0,
       {kTodos, kDoscientos, kDieciseis}}};
}

Opcion OpcionDeColor() {
  return {"--color", Tipo::Interruptor, "",
          "cada carácter con el color medio de la imagen bajo él; no en txt"};
}

Exportacion::Exportacion(const Argumentos& arguments)
    : formato(FormatoPedido(arguments)), opciones(Leer(arguments)), conTitulo(arguments.Tiene("--titulo")) {}

bool Exportacion::EsTexto() const {
  return formato == Formatos().data();
}

Medios Exportacion::MediosDe(Consola& consola, const Font& font) {
  TextSurface& surface = consola.Superficie();
  return {surface,
          font,
          surface.GetTextSize(font, "A"),
          [](const Picture& picture) { return EscribirPng(picture, Empaquetado::Pequeno); },
          [font](std::string_view text) { return TextoGuardado(font, text); },
          EscribirGif};
}

std::string Exportacion::Bytes(Consola& consola, const Font& font, const Dibujo& drawing,
                               const std::string& title) const {
  OpcionesDeExportar o = opciones;
  if (!conTitulo) o.titulo = title;
  return formato->escribir(drawing, o, MediosDe(consola, font));
}

}  // namespace pixmosa::cli

#include "programa/Opciones.h"

#include <charconv>
#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

#include "platform/CodePage.h"
#include "platform/Lines.h"
#include "platform/Palabras.h"
#include "programa/Ajustes.h"

namespace pixmosa {
namespace {

struct Opcion {
  const char* nombre;
  std::function<std::string(const Programa&)> leer;
  std::function<void(Programa&, std::string_view)> poner;
};

constexpr int kMasColumnas = 20'000, kMayorColor = 0xFFFFFF, kMasPuntos = 200;
constexpr double kMenorProporcion = 0.1, kMayorProporcion = 10;

// A whole number, a switch or a choice within a range; `field` gives the member of a Programa.
template <typename Campo>
Opcion Entero(const char* name, int least, int most, Campo field) {
  return {name, [=](const Programa& p) { return std::to_string(static_cast<int>(field(p))); },
          [=](Programa& p, std::string_view text) {
            using Tipo = std::remove_reference_t<decltype(field(p))>;
            if (const auto value = EnteroDeTexto(text, least, most)) field(p) = static_cast<Tipo>(*value);
          }};
}

std::string Utf8De(std::u32string_view characters) {
  std::string utf8;
  for (const char32_t c : characters) AppendUtf8(utf8, c);
  return utf8;
}

std::string EnUnaLinea(std::string text) {
  std::erase_if(text, [](char c) { return c == '\r' || c == '\n'; });
  return text;
}

Opcion Fuente() {
  return {"fuente", [](const Programa& p) { return EnUnaLinea(p.ajustes.font.name); },
          [](Programa& p, std::string_view text) {
            if (!text.empty()) p.ajustes.font.name = text;
          }};
}

Opcion Negativo() {
  return {"negativo", [](const Programa& p) { return p.basAscii.CountedColour == kBlack ? "1" : "0"; },
          [](Programa& p, std::string_view text) {
            if (const auto on = EnteroDeTexto(text, 0, 1)) p.basAscii.CountedColour = *on ? kBlack : kWhite;
          }};
}

Opcion Caracteres() {
  return {"caracteres", [](const Programa& p) { return Utf8De(p.ajustes.caracteres); },
          [](Programa& p, std::string_view text) { p.ajustes.caracteres = JuegoDeCaracteres(text); }};
}

Opcion Proporcion() {
  return {"proporcion", [](const Programa& p) { return std::to_string(p.basAscii.Proporcion); },
          [](Programa& p, std::string_view text) {
            double value = 0;
            const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
            const bool number = error == std::errc() && end == text.data() + text.size();
            if (number && (value == 0 || (value >= kMenorProporcion && value <= kMayorProporcion)))
              PonerProporcion(p, value);
          }};
}

Opcion FondoWeb() {
  return {"fondoWeb", [](const Programa& p) { return std::to_string(p.fondoWeb); },
          [](Programa& p, std::string_view text) {
            if (const auto colour = EnteroDeTexto(text, 0, kMayorColor)) p.fondoWeb = *colour;
            p.basWeb.Fondo = TextoDeFondo(p.fondoWeb);
          }};
}

Opcion PaletaDeTexto() {
  return {"textoPaletaWeb",
          [](const Programa& p) { return EnUnaLinea(Utf8OfBytes(p.ajustesWeb.textoPaleta)); },
          [](Programa& p, std::string_view text) { p.ajustesWeb.textoPaleta = BytesOfUtf8(text); }};
}

Opcion Formato() {
  return {"formato", [](const Programa& p) { return p.formatoDeExportar; },
          [](Programa& p, std::string_view text) {
            if (FormatoDe(std::string(text))) p.formatoDeExportar = text;
          }};
}

std::vector<Opcion> Opciones() {
  return {
      Entero(
          "modo", kModoGrises, kModoCopiaExacta, [](auto& p) -> auto& { return p.modo; }),
      Fuente(),
      Entero(
          "puntos", 1, kMasPuntos, [](auto& p) -> auto& { return p.ajustes.font.points; }),
      Entero(
          "paleta", 0, static_cast<int>(kPalettes.size()) - 1,
          [](auto& p) -> auto& { return p.ajustes.palette; }),
      Negativo(),
      Entero(
          "tamaño", 1, kMayorPorcentaje, [](auto& p) -> auto& { return p.ajustes.size; }),
      Entero(
          "columnas", 0, kMasColumnas, [](auto& p) -> auto& { return p.columnas; }),
      Entero(
          "luminosidad", -100, 100, [](auto& p) -> auto& { return p.ajustes.luminosity; }),
      Entero(
          "relleno", 0, 1, [](auto& p) -> auto& { return p.ajustes.relleno; }),
      Entero(
          "contrasteLocal", 0, 100, [](auto& p) -> auto& { return p.ajustes.formas.contrasteLocal; }),
      Entero(
          "nitidez", 0, 100, [](auto& p) -> auto& { return p.ajustes.formas.nitidez; }),
      Entero(
          "ajustarTono", 0, 1, [](auto& p) -> auto& { return p.ajustes.formas.ajustarTono; }),
      Caracteres(),
      Proporcion(),
      Entero(
          "fondo", 0, kMayorColor, [](auto& p) -> auto& { return p.fondoTexto; }),
      Entero(
          "texto", 0, kMayorColor, [](auto& p) -> auto& { return p.colorTexto; }),
      Entero(
          "vistaPrevia", 0, 1, [](auto& p) -> auto& { return p.vistaPrevia; }),
      FondoWeb(),
      Entero(
          "detalleWeb", 1, 5, [](auto& p) -> auto& { return p.ajustesWeb.tamaño; }),
      Entero(
          "paletaWeb", 0, 1, [](auto& p) -> auto& { return p.ajustesWeb.paleta; }),
      PaletaDeTexto(),
      Entero(
          "bordeArriba", 0, 1, [](auto& p) -> auto& { return p.ajustesWeb.bordeArriba; }),
      Entero(
          "bordeAbajo", 0, 1, [](auto& p) -> auto& { return p.ajustesWeb.bordeAbajo; }),
      Entero(
          "bordeDerecha", 0, 1, [](auto& p) -> auto& { return p.ajustesWeb.bordeDerecha; }),
      Entero(
          "bordeIzquierda", 0, 1, [](auto& p) -> auto& { return p.ajustesWeb.bordeIzquierda; }),
      Formato(),
      Entero(
          "exportarColor", 0, 1, [](auto& p) -> auto& { return p.exportar.color; }),
      Entero(
          "exportarEscala", 1, 8, [](auto& p) -> auto& { return p.exportar.escala; }),
      Entero(
          "exportarTrazos", 0, 1, [](auto& p) -> auto& { return p.exportar.trazos; }),
  };
}

}  // namespace

std::string TextoDeOpciones(const Programa& p) {
  std::string text;
  for (const Opcion& o : Opciones()) text += std::string(o.nombre) + "=" + o.leer(p) + "\n";
  return text;
}

void LeerOpciones(Programa& p, std::string_view text) {
  const std::vector<Opcion> options = Opciones();
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    for (const Opcion& o : options)
      if (line.substr(0, equals) == o.nombre) o.poner(p, line.substr(equals + 1));
  }
}

void PonerOpcionesDeFabrica(Programa& p) {
  const std::unique_ptr<const Programa> fresh(new Programa{p.superficie, p.codec, p.carpeta});
  LeerOpciones(p, TextoDeOpciones(*fresh));
  PonerConversion(p, fresh->ajustes.conversion);
}

}  // namespace pixmosa

// The formats that a drawing of cells can be written in: one table, a row each.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "platform/CodificadorDeAnimacion.h"
#include "platform/Dibujo.h"
#include "platform/Errores.h"
#include "platform/TextSurface.h"

namespace pixmosa {

// A drawing that a format has no room for; what() is a Spanish sentence in UTF-8.
class DibujoExcesivo : public ErrorDelPrograma {
 public:
  using ErrorDelPrograma::ErrorDelPrograma;
};

enum class ColoresDeTerminal { Todos, Doscientos, Dieciseis };  // 24 bits, 256, 16

struct OpcionesDeExportar {
  std::string titulo;  // UTF-8; of a page and of a vector picture
  Colour papel = kWhite, tinta = kBlack;
  bool papelPedido = false, tintaPedida = false;  // a terminal keeps its own paper and ink otherwise
  bool color = false;                             // the cells' own inks count
  bool sinImagenes = false;                       // a page has its colours in spans, not in a picture
  bool trazos = false;                            // a vector picture has outlines, no text
  int escala = 2;                                 // 1..8, of a picture
  ColoresDeTerminal colores = ColoresDeTerminal::Todos;
};

// What the writers need beside the drawing.
struct Medios {
  TextSurface& superficie;
  Font fuente;
  Extent celda;  // its measured cell, 1 x 1 or more
  // The bytes of a PNG file.
  std::function<std::string(const Picture&)> codificarPng;
  // The saved form of a text of the 8-bit code page with CR LF between its rows.
  std::function<std::string(std::string_view)> guardarTexto;
  AbrirCodificador abrirGif{};  // only films need it
};

// The bytes of the whole file. Throws DibujoExcesivo.
using Escritor = std::string (*)(const Dibujo&, const OpcionesDeExportar&, const Medios&);

struct Formato {
  const char* terminacion;  // "html"
  const char* rotulo;       // UTF-8, for the filter of a dialog: "Página web"
  Escritor escribir;
};

// Text first.
std::span<const Formato> Formatos();

constexpr char MinusculaAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

// The format of this ending, without its dot and in any case; nullptr for an unknown one.
const Formato* FormatoDe(std::string_view ending);

}  // namespace pixmosa

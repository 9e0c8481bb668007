// What the writers of formats need, made by the test: glyphs of the fake surface, and a PNG encoder that
// keeps the picture.
#pragma once

#include <algorithm>
#include <string>

#include "exportar/Formatos.h"
#include "tests/support/FakeTextSurface.h"

namespace pixmosa::test {

inline constexpr Colour kRojo = 0x0000FF, kVerde = 0x00FF00, kAzul = 0xFF0000;

struct Taller {
  FakeTextSurface superficie;
  Picture codificada;  // the last one
  std::string bytesDePng = "PNG";
  Medios medios{superficie,
                {"Mono <1>", 6},
                {4, 5},
                [this](const Picture& p) {
                  codificada = p;
                  return bytesDePng;
                },
                [](std::string_view text) { return "[" + std::string(text) + "]"; }};

  std::string Escribir(const char* ending, const Dibujo& drawing, const OpcionesDeExportar& options = {}) {
    return FormatoDe(ending)->escribir(drawing, options, medios);
  }
};

// A drawing from its rows, and the ink of each character that is not a blank by its letter.
inline Dibujo Entintado(std::string_view rows, const std::vector<std::pair<char32_t, Colour>>& inks) {
  Dibujo d = DibujoDeUtf8(rows);
  for (Fila& row : d.filas)
    for (Celda& cell : row)
      for (const auto& [character, ink] : inks)
        if (cell.caracter == character) cell.tinta = ink;
  return d;
}

inline std::size_t Veces(std::string_view text, std::string_view part) {
  std::size_t n = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1)) ++n;
  return n;
}

}  // namespace pixmosa::test

// A rectangle of cells away from the canvas: copied, mirrored, put down again.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "editor/Espejo.h"
#include "editor/basEditor.h"

namespace pixmosa {

struct Letra {
  char32_t caracter = U' ';
  Colour tinta = kNoColour;
  bool operator==(const Letra&) const = default;
};

struct Bloque {
  int columnas = 0, filas = 0;
  std::vector<Letra> letras;  // row by row
  const Letra& En(int column, int row) const {
    return letras[static_cast<std::size_t>(row) * static_cast<std::size_t>(columnas) +
                  static_cast<std::size_t>(column)];
  }
  bool Vacio() const { return letras.empty(); }
  bool operator==(const Bloque&) const = default;
};

// The paintable cells that there are of a zone: 1 and more each way.
ZonaDeCeldas EnElLienzo(const Lienzo& canvas, const ZonaDeCeldas& zone);

// All that can be painted of a canvas; the part of it that something is seen in, or nothing seen: one cell.
ZonaDeCeldas ZonaEntera(const Lienzo& canvas);
ZonaDeCeldas ZonaUsada(const Lienzo& canvas);

// What is seen in a zone of the canvas; controls are blanks.
Bloque Copiado(const Lienzo& canvas, const ZonaDeCeldas& zone);

// Its rows without blanks at their ends, CR LF between them, UTF-8; and a block of a text's rows, as wide as
// the longest, within the bounds of a canvas.
std::string TextoDe(const Bloque& block);
Bloque BloqueDe(std::string_view utf8);

// Puts it down with its top left cell at `at`, as far as the canvas reaches. Blanks leave what is there where
// `porosa`.
void Poner(BasEditor& editor, const Bloque& block, Cell at, bool porosa);

// Every cell of a zone in the brush's character.
void Llenar(BasEditor& editor, const ZonaDeCeldas& zone, char32_t ch);

// Turns a block over, glyphs too.
Bloque Volteado(const Bloque& block, Eje axis);

// A character for another within a zone; how many there were.
int Reemplazar(BasEditor& editor, const ZonaDeCeldas& zone, char32_t find, char32_t replacement);

// A canvas of another size, with what there is in it from `desde` on. Where that cuts the opened text, the
// drawing becomes a new one.
void Redimensionar(BasEditor& editor, int columns, int rows, Cell desde = {1, 1});

}  // namespace pixmosa

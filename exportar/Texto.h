// What the writers of text formats share: characters that every reader draws, colours as text, runs of one
// colour.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "exportar/Formatos.h"
#include "platform/Dibujo.h"

namespace pixmosa {

// The character as a page or a terminal has to be given it so that it takes one cell: a control, a mark
// without width or what is no character becomes a blank, the soft hyphen, which readers hide, a hyphen.
char32_t Dibujable(char32_t c);

// Nothing is drawn in such a cell: its ink does not matter.
bool EsBlanco(char32_t c);

// The usual fixed-pitch fonts have the character, as wide as any other: those of the code page, and the lines
// and blocks of the WGL4 set. Another one comes from wherever the reader finds it, of any width.
bool EsUsual(char32_t c);

// One character of the text of an element in UTF-8, "&", "<" and what could end a section as references.
void AppendEscapado(std::string& to, char32_t c);

// The same of UTF-8, also for an attribute in double quotes.
std::string Escapado(std::string_view utf8);

// UTF-8 as a string of a style sheet, with its quotes.
std::string CadenaCss(std::string_view utf8);

// "#rrggbb".
std::string Hexadecimal(Colour colour);

// Cells of a row, `desde` included and `hasta` not, that one setting of colours serves: blanks join what
// stands before them, and those at the start what follows. kNoColour is the drawing's own ink or paper.
struct Tramo {
  std::size_t desde, hasta;
  Colour tinta, papel;
  bool blanco;  // blanks alone
};

// Without `color` every ink is kNoColour. An empty row has none.
std::vector<Tramo> TramosDe(const Fila& row, bool color);

}  // namespace pixmosa

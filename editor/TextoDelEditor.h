// Between the grid and the text that it was opened from: what comes in goes out as it was, but for the cells
// that were changed. Texts are UTF-8.
#pragma once

#include <string>
#include <string_view>

#include "editor/basEditor.h"
#include "platform/Dibujo.h"

namespace pixmosa {

// The text that a drawing was opened from.
struct TextoAbierto {
  std::string texto;
  int columnas = 0, lineas = 0;  // of the whole text; CR begins a line
  int celdas = 0;                // of the longest line, with its LF
  bool cabe = true;              // every character has its cell
  bool desplazado = false;       // a line begins with a LF, which takes its first cell
  bool alineado = false;         // the LFs were taken out of the cells: all lines begin in column 1
};

// A text and its measures.
TextoAbierto TextoMedido(std::string_view text);

// A new drawing with nothing on it; the canvas keeps its size.
void BorrarTodo(BasEditor& editor);

// A new drawing from a text, painted as PaintText does on a canvas with room for it, never smaller than a new
// one.
void AbrirTexto(BasEditor& editor, std::string_view text);

// Takes the LFs that opening painted at the front of lines out of their cells, so that all lines begin in
// column 1. The text stays the same.
void AlinearRenglones(BasEditor& editor);

// The drawing as text: the opened text, every byte of it, with the characters of the cells that differ from
// how it left them. Lines grow where something was drawn behind or below them; control codes that an action
// moved are blanks. The LF that opening painted at the front of a line is no part of the drawing; where
// something was drawn over one, all lines move right by one. A new drawing gives its rows, CR LF between
// them, without trailing blanks and empty rows. Erased characters are still in the grid and come back.
std::string DrawingText(const BasEditor& editor);

// The same as rows of cells with their inks. What is beyond the canvas has none.
Dibujo DrawingCells(const BasEditor& editor);

// How many characters of a text the code page lacks, and the text with them replaced: lines, arrows and
// blocks by the nearest of ASCII, others by "?".
struct TextoDePagina {
  std::string bytes;
  std::size_t cambiados = 0;
};
TextoDePagina EnPagina(std::string_view utf8);

}  // namespace pixmosa

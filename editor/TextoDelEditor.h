// Between the grid and the text that it was opened from: what comes in goes out as it was, but for the cells
// that were changed.
#pragma once

#include <string>
#include <string_view>

#include "editor/basEditor.h"

namespace pixmosa {

// The text that a drawing was opened from and the cells as it left them.
struct TextoAbierto {
  std::string texto;
  Characters celdas;
  int columnas = 0, lineas = 0;  // of the whole text; CR begins a line
  bool cabe = true;              // every character has its cell
};

// A new drawing with nothing on it.
void BorrarTodo(BasEditor& editor);

// A new drawing from a text, painted as PaintText does.
void AbrirTexto(BasEditor& editor, std::string_view text);

// The drawing as text: the opened text, every byte of it, with the characters of the cells that differ from
// how it left them. Lines grow where something was drawn behind or below them; control codes that an action
// moved are blanks. The LF that opening painted at the front of a line is no part of the drawing; where
// something was drawn over one, all lines move right by one. A new drawing gives its rows, CR LF between
// them, without trailing blanks and empty rows. Erased characters are still in the grid and come back.
std::string DrawingText(const BasEditor& editor);

}  // namespace pixmosa

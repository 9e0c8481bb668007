#include "editor/Herramientas.h"

namespace pixmosa {

std::vector<Pintada> FiguraDe(const BasEditor& editor, Tool tool, const OpcionesDeHerramienta& options,
                              Cell a, Cell b) {
  const char32_t ch = editor.CurrentChar.caracter;
  switch (tool) {
    case Tool::Linea:
      return Linea(a, b, options.trazo, ch);
    case Tool::Flecha:
      return Flecha(a, b);
    case Tool::Elipse:
      return Elipse(editor.Grid, a, b, options.elipseRellena, ch);
    case Tool::Marco:
      return Marco(editor.Grid, a, b, options.marco);
    default:
      return {};
  }
}

void Borrar(BasEditor& editor, Cell at, const OpcionesDeHerramienta& options) {
  const int before = (options.goma - 1) / 2, behind = options.goma / 2;
  for (int row = at.row - before; row <= at.row + behind; ++row)
    for (int column = at.column - before; column <= at.column + behind; ++column) {
      if (options.borrarDelTodo) PintarCelda(editor, {column, row}, U' ', kNoColour);
      EraseCell(editor, {column, row});
    }
}

}  // namespace pixmosa

// The tools and what they can be told.
#pragma once

#include "editor/Figuras.h"

namespace pixmosa {

// By the keys of their buttons.
enum class Tool {
  Libre,
  Borrar,
  Caja,
  CajaR,
  Rellenar,
  Texto,
  Linea,
  Flecha,
  Elipse,
  Marco,
  Seleccionar,
  Cuentagotas
};

struct OpcionesDeHerramienta {
  bool continuo = true;        // strokes of the pen and the eraser have no gaps
  int goma = 1;                // cells across, of the eraser
  bool borrarDelTodo = false;  // the eraser empties the cells too
  TrazoDeLinea trazo = TrazoDeLinea::Caracter;
  bool elipseRellena = false;
  EstiloDeMarco marco = EstiloDeMarco::Simple;
  bool porosa = false;  // blanks of what is moved or pasted leave what is below
};

// The tools that show what they will paint from where the button went down to where it is.
constexpr bool EsFigura(Tool tool) {
  return tool == Tool::Linea || tool == Tool::Flecha || tool == Tool::Elipse || tool == Tool::Marco;
}

// What such a tool paints.
std::vector<Pintada> FiguraDe(const BasEditor& editor, Tool tool, const OpcionesDeHerramienta& options,
                              Cell a, Cell b);

// The eraser about a cell, as wide as it is.
void Borrar(BasEditor& editor, Cell at, const OpcionesDeHerramienta& options);

}  // namespace pixmosa

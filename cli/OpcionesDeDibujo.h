// The options that pick the format of the art and shape it, shared by the orders that make drawings.
#pragma once

#include <string>
#include <vector>

#include "cli/Argumentos.h"
#include "cli/Consola.h"
#include "exportar/Formatos.h"

namespace pixmosa::cli {

// --formato, --fondo, --tinta, --titulo, --sin-imagenes, --trazos, --escala, --colores.
std::vector<Opcion> OpcionesDeDibujo();

// --color, for orders with a picture.
Opcion OpcionDeColor();

// What a command line asks for, read and checked before any work.
struct Exportacion {
  // Throws ErrorDeUso.
  explicit Exportacion(const Argumentos& arguments);

  bool EsTexto() const;
  bool ConColor() const { return opciones.color && !EsTexto(); }
  std::string Terminacion() const { return std::string(".") + formato->terminacion; }

  // The file's bytes; `title` where no --titulo is given. The cell is measured in `font`.
  std::string Bytes(Consola& consola, const Font& font, const Dibujo& drawing,
                    const std::string& title) const;

  // What its writers, and those of films, need.
  static Medios MediosDe(Consola& consola, const Font& font);

  const Formato* formato;
  OpcionesDeExportar opciones;
  bool conTitulo;
};

}  // namespace pixmosa::cli

// The formats that a series of drawings can be written in: one table, a row each, beside that of Formatos.h.
#pragma once

#include <memory>

#include "exportar/Formatos.h"

namespace pixmosa {

// Takes the drawings of a film in their order; the file's bytes come out as they are made.
class EscritorDePelicula {
 public:
  virtual ~EscritorDePelicula() = default;

  // Shown for so many milliseconds, 20 or more. Cells have no paper of their own. Throws DibujoExcesivo.
  virtual void Poner(const Dibujo& drawing, int milliseconds) = 0;

  // After the last one; there has been one at least.
  virtual void Acabar() = 0;
};

// What a film's file is made with. `cuadro`: the columns of every drawing and the rows of the first; a
// picture is cut to them, or filled up with paper.
struct Rodaje {
  OpcionesDeExportar opciones;
  Medios medios;
  Extent cuadro;
  Salida salida;
};

struct FormatoDePelicula {
  const char* terminacion;  // "gif"
  const char* rotulo;       // UTF-8, for the filter of a dialog
  std::unique_ptr<EscritorDePelicula> (*abrir)(Rodaje);
};

// The player page first.
std::span<const FormatoDePelicula> FormatosDePelicula();

// The format of this ending, without its dot and in any case; nullptr for an unknown one.
const FormatoDePelicula* FormatoDePeliculaDe(std::string_view ending);

// The writers of the table, each in the file of its name.

// A page that plays the frames as text in one <pre>; equal frames that follow one another become one.
std::unique_ptr<EscritorDePelicula> AbrirReproductor(Rodaje film);

// An animated GIF without end of options.escala pixels for a pixel of the cell: 16 shades between paper and
// ink, or with options.color 256 colours chosen for each frame. Delays in hundredths of a second, whose
// rounding does not add up.
std::unique_ptr<EscritorDePelicula> AbrirGifDePelicula(Rodaje film);

// A terminal recording, asciicast version 2 (the file format's description at docs.asciinema.org).
std::unique_ptr<EscritorDePelicula> AbrirGrabacion(Rodaje film);

// What shows a drawing on a terminal from its top left corner, over the one before it of at most `columns`:
// rows of `rows` at most, with the colours of ComoAns.
std::string PantallaDe(const Dibujo& drawing, const OpcionesDeExportar& options, const Medios& means,
                       Extent screen);

}  // namespace pixmosa

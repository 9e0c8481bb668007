// The parts of a page of character art, shared by the still page and the player.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>

#include "exportar/Formatos.h"
#include "exportar/Texto.h"

namespace pixmosa {

// Names of classes, a pair of ink and paper each, in the order of their first use. Without vowels, so that
// none is a word that filters of advertisements look for.
class Clases {
 public:
  const std::string& De(const Tramo& run);
  // The style sheet's rules.
  const std::string& Reglas() const { return reglas_; }

 private:
  std::map<std::pair<Colour, Colour>, std::string> nombres_;
  std::string reglas_;
};

// What stands in the <pre>: the rows, and with `classes` the spans of their colours. A line end right behind
// the tag itself does not count: there it has to be given twice.
std::string Contenido(const Dibujo& drawing, bool color, Clases* classes);

// One pixel a cell, `columns` across, of the colour that `part` is of it, `otherwise` where it has none;
// rounded to a multiple of `step`. Where nothing shows it, it repeats its neighbour, which takes fewer bytes.
// Neither `columns` nor the rows are 0.
Picture ImagenDeCeldas(const Dibujo& drawing, std::size_t columns, Colour Celda::*part, Colour otherwise,
                       int step);

// A picture as an address of a style sheet.
std::string DireccionDe(const Picture& picture, const Medios& means);

// The rule for colours that are pictures behind the text, which only the text lets through; `images` and
// `clip` are the values of its properties.
std::string ReglaDeImagenes(const std::string& images, const std::string& clip);

// The page's start up to its title; `policy` is what its content may do besides style.
std::string PrincipioDePagina(const OpcionesDeExportar& o, const std::string& policy);

// Paper and ink; the measures of a text of so many columns; plain text where the reader's own colours rule.
std::string ReglasDePagina(const OpcionesDeExportar& o);
std::string ReglasDeTexto(std::size_t columns, const Medios& means);
extern const char* const kReglasLegibles;

}  // namespace pixmosa

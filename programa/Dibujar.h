// The produced text as a drawing of cells, which every export format takes.
#pragma once

#include "exportar/Formatos.h"
#include "platform/Dibujo.h"
#include "programa/Generar.h"
#include "programa/Programa.h"

namespace pixmosa {

// The most characters of a drawing: a cell is far more than a byte.
inline constexpr std::size_t kMasCeldas = 40'000'000;

// The produced text without colours. Throws DibujoExcesivo for more than kMasCeldas characters.
Dibujo DibujoDe(const Programa& p);

// The same, every character in the mean colour of the part of `source` that it was made of. `resized` is what
// `method` made the produced text of; the methods of EsDeFormas have none.
Dibujo DibujoEnColor(const Programa& p, const Picture& source, const Picture& resized, int method);

// A text as it stands in the window (UTF-8), in the colours of the working picture where p.exportar asks for
// them and the text was made of it, or in those of the banner. Throws DibujoExcesivo.
Dibujo DibujoDeVentana(const Programa& p, std::string_view utf8);

// The options that such a drawing is exported with: those chosen, and its colours where the banner has some.
OpcionesDeExportar OpcionesDeVentana(const Programa& p);

// Where the picture of a drawing comes from: the whole of it, or only what a method needs of it.
struct OrigenDeImagen {
  std::function<Picture()> entera;
  LeerReducida reducida;
  // Begins reducida(Lectura::Reducida) for this size, to go on beside other readings; false where that would
  // save nothing.
  std::function<bool(Extent)> adelantar = [](Extent) { return false; };
};
OrigenDeImagen OrigenDe(const Picture& picture);
OrigenDeImagen OrigenDe(PictureCodec& codec, const std::filesystem::path& file);

// Makes the produced text of a picture, as GenerarDe does, from one reading of it, and with `color` its
// colours. Throws what reading throws, TextoExcesivo and DibujoExcesivo.
Dibujo GenerarDibujo(Programa& p, const OrigenDeImagen& source, int method, bool color);

}  // namespace pixmosa

// The produced text as a drawing of cells, which every export format takes.
#pragma once

#include "exportar/Formatos.h"
#include "platform/Dibujo.h"
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
// them and the text was made of it. Throws DibujoExcesivo.
Dibujo DibujoDeVentana(const Programa& p, std::string_view utf8);

}  // namespace pixmosa

// The writers of the table, each in the file of its name.
#pragma once

#include "exportar/Formatos.h"

namespace pixmosa {

// The saved text where the code page has every character; UTF-8 with LF between the rows otherwise.
std::string ComoTxt(const Dibujo& drawing, const OpcionesDeExportar& options, const Medios& means);

// A page of one <pre>, whose text content is the rows with LF between.
std::string ComoHtml(const Dibujo& drawing, const OpcionesDeExportar& options, const Medios& means);

// A vector picture in pixels of the cell: a <text> a row, or every glyph's outline once and where it stands.
std::string ComoSvg(const Dibujo& drawing, const OpcionesDeExportar& options, const Medios& means);

// A picture of options.escala pixels for a pixel of the cell, at most 400 megapixels.
std::string ComoPng(const Dibujo& drawing, const OpcionesDeExportar& options, const Medios& means);

// UTF-8 with the colours of ISO 6429 (SGR), LF between the rows.
std::string ComoAns(const Dibujo& drawing, const OpcionesDeExportar& options, const Medios& means);

}  // namespace pixmosa

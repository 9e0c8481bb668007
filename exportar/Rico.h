// A drawing as the rich text that word processors and mail take from a clipboard.
#pragma once

#include <string>

#include "exportar/Formatos.h"
#include "platform/Font.h"

namespace pixmosa {

// A fragment of HTML in UTF-8 with every style written where it applies, as those programs read no rules.
std::string TextoRico(const Dibujo& drawing, const OpcionesDeExportar& options, const Font& font);

}  // namespace pixmosa

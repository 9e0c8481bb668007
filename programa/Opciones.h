// The user's options as text, to be kept from one run to the next.
#pragma once

#include <string>
#include <string_view>

#include "programa/Programa.h"

namespace pixmosa {

// One "name=value" a line, UTF-8: mode, font, colours and everything that the panel of options sets, but for
// the conversion.
std::string TextoDeOpciones(const Programa& p);

// The options of such a text; what is unknown or out of range leaves the option as it is. Nothing is
// measured: Medir follows.
void LeerOpciones(Programa& p, std::string_view text);

// Every option as on the first day.
void PonerOpcionesDeFabrica(Programa& p);

}  // namespace pixmosa

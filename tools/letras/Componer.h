// Shapes put together from drawn ones.
#pragma once

#include "tools/letras/Hoja.h"

namespace pixmosa::letras {

// Whether a code is a mark that goes with letters.
bool EsMarca(std::size_t code);

// Letters with marks, paired quotes and the like, where they are not drawn and their parts are. In a sheet
// of "#" alone the opening marks are the closing ones turned round.
void Componer(Hoja& sheet);

}  // namespace pixmosa::letras

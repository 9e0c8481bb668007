// Changing a setting of the conversion: each procedure writes it and makes again what it leaves stale. The
// produced text is stale after every one of them but PonerColumnas' callers decide when to generate again.
#pragma once

#include "programa/Programa.h"

namespace pixmosa {

// Everything measured from the settings as they stand: both tables, the cell and the column count. The step
// that a program takes once, after filling the settings.
void Medir(Programa& p);

// Brightness, look-up and column count.
void PonerFuente(Programa& p, const Font& font);

// Both tables, from nothing.
void PonerPaleta(Programa& p, int palette);

// Brightness and look-up.
void PonerNegativo(Programa& p, bool negative);

// The column count: `percent` of the characters that fit across the screen, 1..198.
void PonerTamaño(Programa& p, int percent);

// Nothing measured.
void PonerLuminosidad(Programa& p, int luminosity);

}  // namespace pixmosa

// Changing a setting of the conversion: each procedure writes it and makes again what it leaves stale. The
// produced text is stale after every one of them but PonerColumnas' callers decide when to generate again.
#pragma once

#include <string_view>

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

// The column count: `percent` of the characters that fit across the screen, 1..kMayorPorcentaje.
constexpr int kMayorPorcentaje = 198;
void PonerTamaño(Programa& p, int percent);

// The column count itself, 1 or more, which stays with any font; the size is the percentage nearest to it.
// PonerTamaño ends it.
void PonerColumnas(Programa& p, int columns);

// Nothing measured.
void PonerLuminosidad(Programa& p, int luminosity);

// What the grayscale mode runs: kGrayscale, kTono or kFormas. Nothing measured: their characters are when
// they are first needed.
void PonerConversion(Programa& p, int method);

// The characters to choose from, as JuegoDeCaracteres reads them; the palette's where it finds none. Both
// tables, from nothing.
void PonerCaracteres(Programa& p, std::string_view utf8);

// Of kTono and kFormas, 0..100. Nothing measured.
void PonerContrasteLocal(Programa& p, int percent);
void PonerNitidez(Programa& p, int sharpness);
void PonerAjusteDeTono(Programa& p, bool adjust);

// Height by width of the reader's cell; 0 for the font's own. Nothing measured.
void PonerProporcion(Programa& p, double proportion);

}  // namespace pixmosa

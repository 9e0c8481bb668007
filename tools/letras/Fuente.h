// Font files and the catalogue from the styles.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "tools/letras/Estilos.h"
#include "tools/letras/Hoja.h"

namespace pixmosa::letras {

// The rows of every code in a style, all of one height, without the rows that every letter leaves blank.
using Letras = std::array<Filas, 256>;
Letras Pintadas(const Hoja& sheet, const Estilo& style);

// The font file, CR LF at the line ends: letters 32..255 in order, every row ended by "@", the last by "@@".
std::string ArchivoFlf(const Letras& letters, const Estilo& style);

// A line of text (Windows-1252) in the style, for looking at, with LF at the line ends.
std::string Letrero(const Letras& letters, std::string_view text);

// The catalogue of all styles.
std::string Catalogo();

}  // namespace pixmosa::letras

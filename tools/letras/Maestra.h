// The master alphabet of the shipped banner fonts: the drawn shapes and those put together from them.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "tools/letras/Mapa.h"

namespace pixmosa::letras {

inline constexpr int kPrimero = 32, kUltimo = 255;

// Rows of every shape: three for the accents of capitals, seven of the capitals, two below the line.
inline constexpr int kFilas = 12, kCapital = 3, kLinea = 10;

// The drawn shapes in UTF-8 (see the file).
extern const std::vector<std::string_view> kHojas;

// The shape of every code of Windows-1252, without blank columns at its sides; empty (no columns) for the
// codes that the page leaves undefined and for 0..31.
using Alfabeto = std::array<Mapa, 256>;
Alfabeto Maestra();

}  // namespace pixmosa::letras

// Lines of a banner one below the other.
#pragma once

#include <string>
#include <vector>

#include "figlet/FuenteFiglet.h"

namespace pixmosa {

enum class Apilado { Completo, Juntar, Fundir };

// Puts the rows of a line below those of the lines above it; without hard blanks. They move together until a
// character touches another, or shares its place by the vertical `rules`; universal smushing without any.
// Nothing moves onto a line without anything to be seen.
void Apilar(std::vector<std::u32string>& above, std::vector<std::u32string> line, Apilado how,
            std::int32_t rules);

}  // namespace pixmosa

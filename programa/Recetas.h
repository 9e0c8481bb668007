// Recipes: the steps that a picture is retouched by, under a name, as text that people can read and write.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Errores.h"

namespace pixmosa {

struct LineaDeReceta {
  int numero;        // from 1
  std::string paso;  // as `pixmosa-cli efecto` takes it
};

// The steps of a recipe's text (UTF-8): one a line, blanks around it do not count, a "#" begins a comment,
// empty lines are passed over. Throws ErrorDelPrograma where there is none, or more than 1,000.
std::vector<LineaDeReceta> PasosDeReceta(std::string_view text);

// The file of what the user calls a recipe: a file of that name where there is one, else NAME.txt in the
// folder of the user's recipes. Throws ErrorDelPrograma where there is neither.
std::filesystem::path ArchivoDeReceta(const std::filesystem::path& folder, const std::string& name);

}  // namespace pixmosa

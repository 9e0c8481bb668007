// Recipes: the steps that a picture is retouched by, under a name, as text that people can read and write.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "programa/Pasos.h"
#include "programa/Programa.h"

namespace pixmosa {

// The steps of a recipe's text (UTF-8): one a line, blanks around it do not count, a "#" begins a comment,
// empty lines are passed over. `name` is the recipe's in messages. Throws ErrorDePaso for a line that is no
// step, ErrorDelPrograma where there is none, or more than 1,000.
std::vector<Paso> PasosDeReceta(std::string_view text, const std::string& name);

// The same of a file. Throws FileError too.
std::vector<Paso> LeerReceta(const std::filesystem::path& file);

// The file of what the user calls a recipe: a file of that name where there is one, else NAME.txt in the
// folder of the user's recipes. Throws ErrorDelPrograma where there is neither.
std::filesystem::path ArchivoDeReceta(const std::filesystem::path& folder, const std::string& name);

// Where a recipe of this name is kept. Throws ErrorDelPrograma for a name that no file can have, and where
// there is no folder for them.
std::filesystem::path SitioDeReceta(const std::filesystem::path& folder, const std::string& name);

// The names of the user's recipes in natural order; none where the folder is not there.
std::vector<std::string> RecetasGuardadas(const std::filesystem::path& folder);

// The steps that made the working picture out of the one that was loaded, as words.
const std::vector<std::string>& PasosDados(const Programa& p);

// Keeps the steps under a name, in place of an earlier recipe of it. Throws ErrorDelPrograma.
void GuardarReceta(const std::filesystem::path& folder, const std::string& name,
                   const std::vector<std::string>& words);

// Runs the steps on the working picture, whose undo copy is the picture before them all. Where a step throws,
// or the progress cancels, everything is as it was.
void DarPasos(Programa& p, const std::vector<Paso>& steps, Progress& progress);

}  // namespace pixmosa

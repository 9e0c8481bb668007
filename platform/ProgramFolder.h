// Where the program lives and where its shipped files are.
#pragma once

#include <filesystem>
#include <vector>

namespace pixmosa {

// The folder that holds the files shipped with the program ("Paleta 3x2.txt", "Fonts"): the folder of the
// executable where they lie there, otherwise the share folder beside it, otherwise the executable's folder.
std::filesystem::path ProgramFolder();

// The folders of FIGlet fonts: "Fonts" of the program's folder, then the user's own, which may not exist yet.
// XDG_DATA_HOME and HOME say where that is, where they are absolute; otherwise the system's list of users. A
// user without a home has none.
std::vector<std::filesystem::path> FontFolders();

// The folder of the user's recipes, which may not exist; empty for a user without a home.
std::filesystem::path RecipeFolder();

// The folder of drawings kept while they are edited; the same of it.
std::filesystem::path DrawingFolder();

}  // namespace pixmosa

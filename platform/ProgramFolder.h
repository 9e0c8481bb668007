// Where the program lives and where its shipped files are.
#pragma once

#include <filesystem>

namespace pixmosa {

// The folder that holds the files shipped with the program ("Paleta 3x2.txt", "Fonts"): the folder of the
// executable where they lie there, otherwise the share folder beside it, otherwise the executable's folder.
std::filesystem::path ProgramFolder();

}  // namespace pixmosa

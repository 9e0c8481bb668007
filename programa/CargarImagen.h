// A picture file becomes the working picture.
#pragma once

#include <filesystem>

#include "programa/Programa.h"

namespace pixmosa {

// Reads the file as the working picture and its undo copy. A GIF, by the end of its name, is cut into frame
// files first; any other picture leaves the last GIF's frames, which it has no use for. Throws PictureError
// or FileError, and then everything is as it was.
void CargarImagen(Programa& p, const std::filesystem::path& file);

}  // namespace pixmosa

// A picture file becomes the working picture.
#pragma once

#include <filesystem>
#include <string>

#include "programa/Programa.h"

namespace pixmosa {

// Reads the file as the working picture and its undo copy. A GIF, by the end of its name, is cut into frame
// files as well; any other picture leaves the last GIF's frames, which it has no use for. What is wrong with
// a picture that could be loaded all the same is said: a Spanish sentence, or nothing. Throws PictureError,
// and then everything is as it was.
std::string CargarImagen(Programa& p, const std::filesystem::path& file);

// What the codec read of a file, which may be read beside everything else; CargarLeida does the rest.
struct ImagenLeida {
  Picture imagen;
  std::string aviso;
};
std::string CargarLeida(Programa& p, const std::filesystem::path& file, ImagenLeida read);

// The same for a picture that is there already, of no file.
void PonerImagen(Programa& p, Picture picture);

}  // namespace pixmosa

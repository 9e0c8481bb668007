// The animation page, from the frames of a GIF or from the pictures of a folder.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "programa/Programa.h"

namespace pixmosa {

// A series of pictures by number, from 0.
struct Serie {
  std::size_t cuantos = 0;
  std::function<Picture(std::size_t)> leer{};  // throws PictureError
  std::string nombre{};                        // what a page of it may be called
};

// The chosen frames of the last GIF, from their files.
Serie SerieDeGif(const Programa& p);

// The pictures of a folder in alphabetical order.
Serie SerieDeCarpeta(const Programa& p, const std::filesystem::path& folder);

// Writes the page of a series, whole or not at all: each frame becomes the working picture and its grayscale
// text the produced text. A frame that cannot be read repeats the one before. `seguir(k)` is called after
// frame k's text is made; where it says no, nothing is written and the answer is false. Throws FileError.
bool EscribirAnimacion(Programa& p, const Serie& frames, const std::filesystem::path& file,
                       const std::function<bool(std::size_t)>& seguir);

}  // namespace pixmosa

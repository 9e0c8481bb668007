// The animation page, from the frames of a GIF or from the pictures of a folder.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "programa/Programa.h"

namespace pixmosa {

// A series of pictures by number, from 0.
struct Serie {
  std::size_t cuantos = 0;
  std::function<Picture(std::size_t)> leer{};          // throws PictureError
  std::string nombre{};                                // what a page of it may be called
  Extent cadaUna{};                                    // the size of each, where it is known beforehand
  std::function<std::string(std::size_t)> nombreDe{};  // what each is called in messages
};

// What is too much of a series whose pictures' size is known, for a sentence such as "El GIF " + name +
// " es demasiado grande: " + this; nothing where it is not. A few bytes can ask for a great many pixels, and
// what would keep the program busy for far more than ten seconds is refused.
std::string Exceso(const Serie& frames);

// The chosen frames of the last GIF, from their files.
Serie SerieDeGif(const Programa& p);

// Every frame of a GIF, from its bytes; `name` stands for it in messages. The picture that the GIF itself
// shows becomes the working picture, for the frames that cannot be read. Throws FileError.
Serie SerieDeOrigen(Programa& p, const std::shared_ptr<OrigenGif>& gif, const std::string& name);

// The pictures of a folder in alphabetical order.
Serie SerieDeCarpeta(const Programa& p, const std::filesystem::path& folder);

// Called after frame k's text is made; `failure` says why the frame could not be read, or nothing. No ends
// the work.
using Seguir = std::function<bool(std::size_t k, const std::string& failure)>;

// Writes the page of a series, whole or not at all: each frame becomes the working picture and its grayscale
// text the produced text. A frame that cannot be read repeats the one before. False where `seguir` ended the
// work: nothing is written then. Throws FileError, TextoExcesivo.
bool EscribirAnimacion(Programa& p, const Serie& frames, const std::filesystem::path& file,
                       const Seguir& seguir);

}  // namespace pixmosa

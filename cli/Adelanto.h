// A photograph that is decoded while something else is done: fonts loaded, or the same file read in another
// way.
#pragma once

#include <functional>
#include <future>
#include <optional>
#include <string>

#include "platform/Picture.h"

namespace pixmosa::cli {

class Adelanto {
 public:
  // Begins to read a file as PictureCodec::ReadReduced does, where the size that will be asked for is
  // `wanted` for every picture. False where that would save nothing: for other kinds, and for what cannot be
  // read twice.
  bool Empezar(const std::string& file, Extent wanted);

  // The picture that was begun, after size(the whole picture's size); nothing where there is none, or it
  // could not be read: the general reader says what is wrong with it.
  std::optional<Picture> Tomar(const std::function<Extent(Extent)>& size);

 private:
  struct Leida {
    std::optional<Picture> imagen;
    Extent entera;
  };
  std::future<Leida> lectura_;
};

}  // namespace pixmosa::cli

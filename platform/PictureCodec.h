// Picture files in and out. The kind of a file is told by its content, not by its name.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "platform/Errores.h"
#include "platform/Picture.h"

namespace pixmosa {

// what() is a Spanish sentence in UTF-8 that names the file and what is wrong with it.
class PictureError : public ErrorDelPrograma {
 public:
  using ErrorDelPrograma::ErrorDelPrograma;
};

class PictureCodec {
 public:
  virtual ~PictureCodec() = default;

  // The picture in a file, upright, transparent pixels on white. Throws PictureError.
  virtual Picture Read(const std::filesystem::path& file) = 0;

  // The same from the bytes of a file; `name` stands for it in messages.
  virtual Picture ReadBytes(const std::string& bytes, const std::string& name) = 0;

  // Stretch(Read(file), size(the picture's size)), pixel for pixel, without keeping the whole picture where
  // the format allows. Throws PictureError.
  virtual Picture ReadStretched(const std::filesystem::path& file,
                                const std::function<Extent(Extent)>& size) = 0;

  // The bytes of a file in `format` ("png", "bmp", "jpg"). Throws PictureError.
  virtual std::string Encode(const Picture& picture, const std::string& format) = 0;
};

}  // namespace pixmosa

// Picture files in and out. The kind of a file is told by its content, not by its name.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Errores.h"
#include "platform/Picture.h"

namespace pixmosa {

// what() is a Spanish sentence in UTF-8 that names the file and what is wrong with it.
class PictureError : public ErrorDelPrograma {
 public:
  using ErrorDelPrograma::ErrorDelPrograma;
};

// A picture file may have this many bytes; who reads one from a stream bounds it the same way.
constexpr std::uintmax_t kMasBytesDeImagen = std::uintmax_t{1} << 30;

// A picture of a film as it is shown: over those before it, transparent pixels on white.
struct Fotograma {
  Picture imagen;
  int milisegundos = 0;  // how long it is shown, 20 or more
};

// A shorter delay (of which old films are full, meaning "as always") counts as this one.
inline constexpr int kMenosMilisegundos = 20, kMilisegundosDeSiempre = 100;

// What a file says of a delay, as it is played.
constexpr int DuracionDe(std::int64_t milisegundos) {
  constexpr std::int64_t kHora = 3'600'000;
  if (milisegundos < kMenosMilisegundos) return kMilisegundosDeSiempre;
  return static_cast<int>(milisegundos < kHora ? milisegundos : kHora);
}

// The frames of an animated picture, one after another; only one of them is kept.
class LectorDeFotogramas {
 public:
  virtual ~LectorDeFotogramas() = default;

  // The next one; nothing behind the last. Throws PictureError.
  virtual std::optional<Fotograma> Siguiente() = 0;

  // How many the file announces, and the size of each.
  virtual std::size_t Cuantos() const = 0;
  virtual Extent Tamaño() const = 0;

  // After the last one: a Spanish sentence if the file was not whole; else empty.
  virtual std::string Aviso() const { return {}; }
};

// A reader never gives an empty picture. `aviso`, where there is one, gets a Spanish sentence if the picture
// can be shown but is not whole; otherwise it becomes empty.
class PictureCodec {
 public:
  virtual ~PictureCodec() = default;

  // The picture in a file, upright, transparent pixels on white. Throws PictureError.
  virtual Picture Read(const std::filesystem::path& file, std::string* aviso = nullptr) = 0;

  // The same from the bytes of a file; `name` stands for it in messages.
  virtual Picture ReadBytes(std::string_view bytes, const std::string& name,
                            std::string* aviso = nullptr) = 0;

  // Stretch(Read(file), size(the picture's size)), pixel for pixel, without keeping the whole picture where
  // the format allows. Throws PictureError.
  virtual Picture ReadStretched(const std::filesystem::path& file, const std::function<Extent(Extent)>& size,
                                std::string* aviso = nullptr) = 0;

  // Read(file), or where the format allows that quickly, the same picture with the means of 2 x 2, 4 x 4 or
  // 8 x 8 of its pixels in their place, still of `size(the whole picture's size)` pixels each way at least.
  // Throws PictureError.
  virtual Picture ReadReduced(const std::filesystem::path& file, const std::function<Extent(Extent)>& size,
                              std::string* aviso = nullptr) = 0;

  // The frames of an animated picture; any other picture has one. `name` stands for it in messages. Throws
  // PictureError.
  virtual std::unique_ptr<LectorDeFotogramas> AbrirAnimacion(std::string bytes, const std::string& name) = 0;

  // The size that a file's first bytes declare, upright, without decoding anything; empty where only decoding
  // tells it, and for what is no picture.
  virtual Extent Size(std::string_view bytes) = 0;

  // The bytes of a file in `format`, one of Formatos() in any case. Throws PictureError.
  virtual std::string Encode(const Picture& picture, const std::string& format) = 0;

  // The endings, in lower case and without a dot, of the files that can be written ("png" first), and read.
  virtual std::vector<std::string> Formatos() = 0;
  virtual std::vector<std::string> FormatosLegibles() = 0;
};

}  // namespace pixmosa

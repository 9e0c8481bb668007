// Why a picture could not be read, as sentences; shared by the parts of the codec.
#pragma once

#include <string>

#include "platform/PictureCodec.h"
#include "platform/decodificador/Respuesta.h"

namespace pixmosa {

// The most pixels of a picture.
inline constexpr std::int64_t kMasPixelesDeImagen = 400'000'000;

constexpr std::int64_t Pixels(Extent size) {
  return size.width > 0 && size.height > 0 ? std::int64_t{size.width} * size.height : 0;
}

// Each throws PictureError with the picture's name.
[[noreturn]] void FailToRead(const std::string& name, const std::string& why);
[[noreturn]] void FailMemory(const std::string& name);
[[noreturn]] void FailSize(const std::string& name, Extent size);

// A picture may take a quarter of the machine's memory: the picture, its undo copy and a running effect fit.
bool FitsMemory(Extent size);
void CheckSize(const std::string& name, Extent size);

// The picture of an answer of the decoding process. Throws PictureError where there is none.
Picture PictureOfAnswer(Decodificada answer, const std::string& name, std::string* aviso);

}  // namespace pixmosa

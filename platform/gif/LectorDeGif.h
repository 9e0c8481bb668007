// The frames of a GIF through giflib, composited as GIF89a says: each on what the one before has left.
#pragma once

#include <memory>

#include "platform/PictureCodec.h"

namespace pixmosa {

// The pictures that a GIF's blocks announce. Survives any bytes; none for what is no GIF.
std::size_t ContarFotogramas(std::string_view bytes);

// Throws PictureError for what is no GIF or has no screen; `name` stands for it in messages. A frame that
// the file cuts short is shown as far as it goes, and is the last.
std::unique_ptr<LectorDeFotogramas> AbrirGif(std::string bytes, const std::string& name);

}  // namespace pixmosa

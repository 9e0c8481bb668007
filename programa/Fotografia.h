// Telling a photograph from a drawing.
#pragma once

#include "platform/Picture.h"

namespace pixmosa {

// The picture has continuous tones, as a photograph or a painting: at least 64 x 64 pixels, many gray levels,
// and no two of them cover half of it.
bool EsFotografia(const Picture& picture);

}  // namespace pixmosa

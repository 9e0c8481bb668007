// The outlines of dark shapes on white, drawn with "/", "\", "_" and "|".
#pragma once

#include <string>

#include "platform/Picture.h"

namespace pixmosa {

// One character a pixel, rows joined by CR LF, none dropped. Only gray 0 is ink and only gray 255 is paper;
// outside the picture is ink. `fill` puts ":" inside shapes instead of a blank. A black pixel whose
// neighbours are neither keeps the character of the pixel before it, also across rows.
std::string ConvertEdges(const Picture& resized, bool fill);

}  // namespace pixmosa

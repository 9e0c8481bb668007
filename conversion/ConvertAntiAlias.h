// Black-and-white pictures by blocks of two pixels across by three down.
#pragma once

#include <string>

#include "conversion/Palette3x2.h"
#include "platform/Picture.h"

namespace pixmosa {

// `resized` is three times as wide as the text. Blocks step by two pixels across but stand at character x /
// 3, so a later block overwrites an earlier one at the same character. Only exact black is ink; outside the
// picture is paper. Rows are joined by CR LF.
std::string ConvertAntiAlias(const Picture& resized, const Palette3x2& palette);

}  // namespace pixmosa

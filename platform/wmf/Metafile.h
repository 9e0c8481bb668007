// Windows metafiles drawn by libwmf. It reads past its memory, divides by nothing and loops for ever on some
// files: only the decoding process may call it.
#pragma once

#include <string_view>

#include "platform/Picture.h"

namespace pixmosa {

// The picture on white at 96 dots an inch, its longest side at most 8192; empty for a damaged file. Throws
// std::bad_alloc.
Picture DibujarMetafile(std::string_view bytes);

}  // namespace pixmosa

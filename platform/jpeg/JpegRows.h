// JPEG files read row by row: a stretch that needs a few hundred rows does not pay for the others.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "platform/Picture.h"

namespace pixmosa {

// Stretch(the picture, size(its size)) of an upright gray or colour (YCbCr) JPEG, the same pixels as decoding
// it whole. Nothing for any other kind, a damaged one, or one that `size` answers with an empty extent; the
// general reader then takes it or says what is wrong.
std::optional<Picture> ReadJpegStretched(std::string_view bytes, const std::function<Extent(Extent)>& size);

// The picture decoded at a half, a quarter or an eighth of its size (each pixel the mean of those in its
// place), the smallest that still has size(its size) pixels each way; whole where none has. Nothing as above.
std::optional<Picture> ReadJpegReduced(std::string_view bytes, const std::function<Extent(Extent)>& size);

}  // namespace pixmosa

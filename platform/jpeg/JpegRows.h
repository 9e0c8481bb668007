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

}  // namespace pixmosa

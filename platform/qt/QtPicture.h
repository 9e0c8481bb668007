// Between pictures and the platform's images, sharing the pixels where both agree on their layout.
#pragma once

#include <QImage>

#include "platform/Picture.h"

namespace pixmosa {

// Shows a picture's block without copying it; the image keeps the block alive. A null image for an empty
// picture.
QImage ImageOf(const Picture& picture);

// The picture stretched to `size` pixels for the screen, smooth. A large one is thinned out before it is
// smoothed, so that millions of pixels take no longer than the screen's few.
QImage Vista(const Picture& picture, QSize size);

// Takes over an image's pixels: transparent ones lie on white, the fourth byte is opaque. An empty picture
// for a null image. Throws std::bad_alloc.
Picture PictureOf(QImage image);

}  // namespace pixmosa

// Stretching one picture into another without blending: every target pixel is one source pixel.
#pragma once

#include <vector>

#include "platform/Picture.h"

namespace pixmosa {

// For each of `target` positions the source position under its centre: floor((2i + 1) * source / (2 *
// target)). Symmetric: a mirrored source gives the mirrored result. Both 1 or more; results lie in
// 0..source-1.
std::vector<int> StretchPositions(int source, int target);

// The whole of `source` stretched into size.width x size.height pixels.
Picture Stretch(const Picture& source, Extent size);

}  // namespace pixmosa

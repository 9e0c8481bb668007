#include "platform/Stretch.h"

#include <cstdint>

namespace pixmosa {

std::vector<int> StretchPositions(int source, int target) {
  std::vector<int> at;
  at.reserve(target);
  const std::int64_t s = source, t = target;
  for (std::int64_t i = 0; i < t; ++i) at.push_back((2 * i + 1) * s / (2 * t));
  return at;
}

Picture Stretch(const Picture& source, Extent size) {
  if (size == source.Size()) return source;
  Picture result(size.width, size.height);
  const std::vector<int> xs = StretchPositions(source.Width(), size.width);
  const std::vector<int> ys = StretchPositions(source.Height(), size.height);
  std::uint32_t* to = result.Writable();
  for (const int y : ys) {
    const auto row = source.Row(y);
    for (const int x : xs) *to++ = row[x];
  }
  return result;
}

}  // namespace pixmosa

#include "conversion/ConvertAntiAlias.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "platform/Pixel.h"

namespace pixmosa {
namespace {

constexpr int kAcross = 2, kDown = 3;
constexpr double kPixelsPerCharacter = 3;

// One byte a pixel, 1 for ink, with a margin of paper at the right and bottom so that every block is whole.
struct InkMap {
  explicit InkMap(const Picture& p) : stride(p.Width() + kAcross), ink(stride * (p.Height() + kDown)) {
    for (int y = 0; y < p.Height(); ++y) {
      std::uint8_t* to = ink.data() + stride * y;
      for (const std::uint32_t pixel : p.Row(y)) *to++ = (pixel & kTresPartes) == 0;
    }
  }

  // The pattern of the block at (x, y): top left pixel in the highest of six bits.
  std::size_t PatternAt(int x, int y) const {
    const std::uint8_t* p = ink.data() + stride * y + x;
    const std::uint8_t* q = p + stride;
    const std::uint8_t* r = q + stride;
    return p[0] << 5 | p[1] << 4 | q[0] << 3 | q[1] << 2 | r[0] << 1 | r[1];
  }

  std::ptrdiff_t stride;
  std::vector<std::uint8_t> ink;
};

}  // namespace

std::string ConvertAntiAlias(const Picture& resized, const Palette3x2& palette) {
  const int width = resized.Width(), height = resized.Height();
  const int lastRow = RoundHalfEven(height / 3.0 - 1);
  const int columns = RoundHalfEven(width / 3.0);
  const InkMap map(resized);
  std::string text;
  for (int r = 0; r <= lastRow; ++r) {
    if (r > 0) text += "\r\n";
    std::string row(columns, ' ');
    const int y = r * kDown;
    for (int x = 0; x < width; x += kAcross) {
      const int position = RoundHalfEven(x / kPixelsPerCharacter + 1);
      const std::optional<char> found = palette.Characters[map.PatternAt(x, y)];
      if (found && position <= columns) row[position - 1] = *found;
    }
    text += row;
  }
  return text;
}

}  // namespace pixmosa

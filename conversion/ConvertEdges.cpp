#include "conversion/ConvertEdges.h"

#include <cstdint>
#include <vector>

#include "platform/Pixel.h"

namespace pixmosa {
namespace {

enum Tone : std::uint8_t { kInk, kBetween, kPaper };

// The tone of every pixel with a frame of ink around, so that every pixel has four neighbours. Stride is
// width + 2.
std::vector<Tone> Tones(const Picture& p) {
  const std::ptrdiff_t stride = p.Width() + 2;
  std::vector<Tone> tones(stride * (p.Height() + 2), kInk);
  for (int y = 0; y < p.Height(); ++y) {
    Tone* to = tones.data() + stride * (y + 1) + 1;
    for (const std::uint32_t pixel : p.Row(y)) {
      const int gray = PixelGray(ColourOfPixel(pixel));
      *to++ = gray == 0 ? kInk : gray == 255 ? kPaper : kBetween;
    }
  }
  return tones;
}

// The character of an ink pixel by its four neighbours; the first rule that holds counts.
char Outline(Tone left, Tone right, Tone up, Tone down, char fill, char current) {
  if (left == kInk && right == kInk && up == kInk && down == kInk) return fill;
  if (left == kPaper && up == kPaper) return '/';
  if (right == kPaper && up == kPaper) return '\\';
  if (left == kPaper && down == kPaper) return '\\';
  if (right == kPaper && down == kPaper) return '/';
  if (right != kPaper && down == kPaper) return '_';
  if (left == kPaper || right == kPaper) return '|';
  return current;
}

}  // namespace

std::string ConvertEdges(const Picture& resized, bool fill) {
  const std::ptrdiff_t width = resized.Width(), stride = width + 2;
  const std::vector<Tone> tones = Tones(resized);
  const char inside = fill ? ':' : ' ';
  char current = ' ';  // before any rule a pixel leaves the blank that its row starts with
  std::string text;
  text.reserve((width + 2) * resized.Height());
  for (int y = 0; y < resized.Height(); ++y) {
    if (y > 0) text += "\r\n";
    const Tone* t = tones.data() + stride * (y + 1) + 1;
    for (std::ptrdiff_t x = 0; x < width; ++x, ++t) {
      current = *t == kInk ? Outline(t[-1], t[1], t[-stride], t[stride], inside, current) : ' ';
      text += current;
    }
  }
  return text;
}

}  // namespace pixmosa

// Small Windows metafiles.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace pixmosa::test {

// A placeable metafile of this box (left, top, right, bottom) in units of `inch` an inch, with these records,
// all in 16-bit words.
inline std::string MetafileOf(const std::array<unsigned, 4>& box, unsigned inch,
                              const std::vector<std::vector<unsigned>>& records) {
  std::string bytes;
  const auto add = [&](const std::vector<unsigned>& list) {
    for (const unsigned w : list) bytes += {static_cast<char>(w & 0xFF), static_cast<char>(w >> 8 & 0xFF)};
  };
  const std::vector<unsigned> placeable = {0xCDD7, 0x9AC6, 0, box[0], box[1], box[2], box[3], inch, 0, 0};
  unsigned sum = 0;
  for (const unsigned w : placeable) sum ^= w;
  add(placeable);
  add({sum});
  add({1, 9, 0x300, 63, 0, 2, 7, 0, 0});  // header: 63 words, two objects, longest record 7
  for (const std::vector<unsigned>& record : records) add(record);
  add({3, 0, 0});
  return bytes;
}

// 1 x 1 inch: white, its left half black.
inline std::string HalfBlackMetafile() {
  return MetafileOf({0, 0, 960, 960}, 960,
                    {{5, 0, 0x20B, 0, 0},                // window origin
                     {5, 0, 0x20C, 960, 960},            // window extent
                     {7, 0, 0x2FC, 0, 0xFFFF, 0xFF, 0},  // white brush
                     {7, 0, 0x2FC, 0, 0, 0, 0},          // black brush
                     {4, 0, 0x12D, 0},                   // white
                     {7, 0, 0x41B, 960, 960, 0, 0},      // rectangle: bottom, right, top, left
                     {4, 0, 0x12D, 1},                   // black
                     {7, 0, 0x41B, 960, 480, 0, 0}});
}

// A box and a line whose ends lie at the edges of the numbers: drawing it takes without end.
inline std::string EndlessMetafile() {
  return MetafileOf({0, 0x8000, 960, 960}, 72, {{8, 0, 0x325, 2, 0x8001, 3, 0x8000, 0xFFFF}});
}

}  // namespace pixmosa::test

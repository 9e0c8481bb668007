// GIF files made by the test: one colour a frame, whole pictures.
#pragma once

#include <string>
#include <vector>

namespace pixmosa::test {

// The header of a GIF of 1 x 1 with the colours black, white, red and green.
inline std::string GifHeader() {
  return std::string("GIF89a\1\0\1\0\x81\0\0", 13) + std::string("\0\0\0\xFF\xFF\xFF\xFF\0\0\0\xFF\0", 12);
}

// A frame whose only pixel has this colour (0..3).
inline std::string GifFrame(int colour) {
  // Codes of three bits, lowest first: clear (4), the colour, end (5).
  const int bits = 4 | colour << 3 | 5 << 6;
  return std::string("\x21\xF9\x04\0\x0A\0\0\0", 8) + std::string("\x2C\0\0\0\0\1\0\1\0\0", 10) + "\2\2" +
         static_cast<char>(bits & 0xFF) + static_cast<char>(bits >> 8) + std::string(1, '\0');
}

inline std::string Gif(const std::vector<int>& colours) {
  std::string gif = GifHeader();
  for (const int c : colours) gif += GifFrame(c);
  return gif + ";";
}

}  // namespace pixmosa::test

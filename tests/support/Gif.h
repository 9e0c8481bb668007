// GIF files made by the test: one colour a frame, whole pictures; or frames of any shape.
#pragma once

#include <string>
#include <utility>
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

// A frame as the file has it: a part of the screen, the numbers (0..3) of its pixels.
struct Recorte {
  int left = 0, top = 0, width = 1, height = 1;
  std::vector<int> pixels{};
  int disposal = 0, transparent = -1, hundredths = 10;
  bool interlaced = false;
};

inline std::string Palabra(int v) {
  return {static_cast<char>(v & 0xFF), static_cast<char>(v >> 8)};
}

// The lines of a picture in the order in which an interlaced one is written.
inline std::vector<int> OrdenDeLineas(int height, bool interlaced) {
  std::vector<int> lines;
  for (const auto& [from, step] : interlaced
                                      ? std::vector<std::pair<int, int>>{{0, 8}, {4, 8}, {2, 4}, {1, 2}}
                                      : std::vector<std::pair<int, int>>{{0, 1}})
    for (int y = from; y < height; y += step) lines.push_back(y);
  return lines;
}

inline std::string GifDe(int width, int height, const std::vector<Recorte>& frames,
                         const std::string& before = {}) {
  std::string gif = GifHeader();
  gif.replace(6, 4, Palabra(width) + Palabra(height));
  gif += before;
  for (const Recorte& f : frames) {
    gif += std::string("\x21\xF9\x04", 3) +
           static_cast<char>(f.disposal << 2 | (f.transparent >= 0 ? 1 : 0)) + Palabra(f.hundredths) +
           static_cast<char>(f.transparent >= 0 ? f.transparent : 0) + '\0';
    gif += "\x2C" + Palabra(f.left) + Palabra(f.top) + Palabra(f.width) + Palabra(f.height) +
           (f.interlaced ? '\x40' : '\0') + '\2';
    // Codes of three bits, lowest first: each pixel behind a clear code (4), so that none grows; the end (5).
    std::vector<int> codes;
    for (const int y : OrdenDeLineas(f.height, f.interlaced))
      for (int x = 0; x < f.width; ++x)
        codes.insert(codes.end(), {4, f.pixels.at(static_cast<std::size_t>(y * f.width + x))});
    codes.push_back(5);
    std::string data((codes.size() * 3 + 7) / 8, '\0');
    for (std::size_t i = 0; i < codes.size() * 3; ++i)
      if (codes[i / 3] >> (i % 3) & 1) data[i / 8] = static_cast<char>(data[i / 8] | 1 << (i % 8));
    for (std::size_t at = 0; at < data.size(); at += 255) {
      const std::string block = data.substr(at, 255);
      gif += static_cast<char>(block.size()) + block;
    }
    gif += '\0';
  }
  return gif + ";";
}

}  // namespace pixmosa::test

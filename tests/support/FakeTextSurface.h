// A display whose characters are drawn by the test: code c has the ink the test gives it.
#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "platform/TextSurface.h"

namespace pixmosa::test {

class FakeTextSurface final : public TextSurface {
 public:
  Extent cell{4, 5};
  std::array<int, 256> ink{};  // black pixels of each code, filled from the cell's top left
  std::vector<Font> measured;  // every font that was asked for

  Extent GetTextSize(const Font& font, std::string_view text) override {
    measured.push_back(font);
    return {cell.width * static_cast<int>(text.size()), cell.height};
  }

  Picture PrintCharacters(const Font&, Extent size, int first, int last) override {
    Picture p = Picture::Filled(size.width, size.height * (last - first + 1), kWhite);
    std::uint32_t* to = p.Writable();
    for (int code = first; code <= last; ++code) {
      std::fill_n(to, std::min(ink[static_cast<std::size_t>(code)], size.width * size.height), 0xFF000000U);
      to += size.width * size.height;
    }
    return p;
  }

  // Ink of a pixel of a smooth character, 0..255; without it the same pixels as printed.
  std::function<int(char32_t character, int x, int y)> smooth{};

  std::vector<std::uint8_t> PrintSmooth(const Font&, Extent size, int scale,
                                        std::u32string_view characters) override {
    std::vector<std::uint8_t> all;
    for (const char32_t c : characters)
      for (int y = 0; y < size.height * scale; ++y)
        for (int x = 0; x < size.width * scale; ++x) {
          const int u = x / scale, v = y / scale;
          const bool black = c < 256 && v * size.width + u < ink[c];
          all.push_back(static_cast<std::uint8_t>(smooth ? smooth(c, u, v) : black ? 255 : 0));
        }
    return all;
  }

  std::string Outline(const Font&, Extent size, char32_t c) override {
    if (c == U' ') return {};
    const std::string w = std::to_string(size.width), h = std::to_string(size.height);
    return "M0 0L" + w + " 0L" + w + " " + h + "L0 " + h + "Z";
  }

  std::vector<std::string> ListFixedFonts() override { return {"DejaVu Sans Mono"}; }
  int ScreenWidth() override { return 1000; }
};

}  // namespace pixmosa::test

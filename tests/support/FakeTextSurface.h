// A display whose characters are drawn by the test: code c has the ink the test gives it.
#pragma once

#include <algorithm>
#include <array>
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

  std::vector<std::string> ListFixedFonts() override { return {"DejaVu Sans Mono"}; }
  int ScreenWidth() override { return 1000; }
};

}  // namespace pixmosa::test

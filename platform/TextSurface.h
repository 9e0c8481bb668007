// Measuring and printing characters on the display. PrintCharacters has no anti-aliasing: a pixel is ink or
// paper.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Font.h"
#include "platform/Picture.h"

namespace pixmosa {

class TextSurface {
 public:
  virtual ~TextSurface() = default;

  // Pixels that `text` (8-bit code page, one line) takes in `font`; 1 x 1 at least.
  virtual Extent GetTextSize(const Font& font, std::string_view text) = 0;

  // The characters first..last (codes 0..255), each printed black at the top left corner of a white cell and
  // cut at its edges: the cells stand below one another in a picture of cell.width x (last - first + 1) *
  // cell.height.
  virtual Picture PrintCharacters(const Font& font, Extent cell, int first, int last) = 0;

  // How much of each pixel is ink, 0..255, for characters drawn WITH smoothing: each at the top left corner
  // of a cell of cell.width * scale x cell.height * scale pixels, `scale` (1..8) times as large, cut at its
  // edges; the cells stand below one another. A character that the font lacks comes from another family.
  virtual std::vector<std::uint8_t> PrintSmooth(const Font& font, Extent cell, int scale,
                                                std::u32string_view characters) = 0;

  // The outline of a character as path data of SVG ("M1 2L3 4...Z", filled by the nonzero rule), in pixels of
  // the cell from its top left corner; empty where nothing is drawn.
  virtual std::string Outline(const Font& font, Extent cell, char32_t character) = 0;

  // Face names (UTF-8) of the fixed-pitch families, sorted, ignoring case.
  virtual std::vector<std::string> ListFixedFonts() = 0;

  // Width of the screen in pixels.
  virtual int ScreenWidth() = 0;
};

}  // namespace pixmosa

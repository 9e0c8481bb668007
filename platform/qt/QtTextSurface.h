// Measures and prints characters with the platform's fonts. Needs a QGuiApplication.
#pragma once

#include "platform/TextSurface.h"

namespace pixmosa {

class QtTextSurface final : public TextSurface {
 public:
  Extent GetTextSize(const Font& font, std::string_view text) override;
  Picture PrintCharacters(const Font& font, Extent cell, int first, int last) override;
  std::vector<std::uint8_t> PrintSmooth(const Font& font, Extent cell, int scale,
                                        std::u32string_view characters) override;
  std::string Outline(const Font& font, Extent cell, char32_t character) override;
  std::vector<std::string> ListFixedFonts() override;
  int ScreenWidth() override;
};

}  // namespace pixmosa

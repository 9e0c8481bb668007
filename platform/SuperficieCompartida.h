// A text surface for several threads: one of them draws at a time.
#pragma once

#include <mutex>

#include "platform/TextSurface.h"

namespace pixmosa {

class SuperficieCompartida final : public TextSurface {
 public:
  explicit SuperficieCompartida(TextSurface& surface) : otra_(surface) {}

  Extent GetTextSize(const Font& font, std::string_view text) override {
    const std::lock_guard lock(llave_);
    return otra_.GetTextSize(font, text);
  }
  Picture PrintCharacters(const Font& font, Extent cell, int first, int last) override {
    const std::lock_guard lock(llave_);
    return otra_.PrintCharacters(font, cell, first, last);
  }
  std::vector<std::uint8_t> PrintSmooth(const Font& font, Extent cell, int scale,
                                        std::u32string_view characters) override {
    const std::lock_guard lock(llave_);
    return otra_.PrintSmooth(font, cell, scale, characters);
  }
  std::string Outline(const Font& font, Extent cell, char32_t character) override {
    const std::lock_guard lock(llave_);
    return otra_.Outline(font, cell, character);
  }
  std::vector<std::string> ListFixedFonts() override {
    const std::lock_guard lock(llave_);
    return otra_.ListFixedFonts();
  }
  int ScreenWidth() override {
    const std::lock_guard lock(llave_);
    return otra_.ScreenWidth();
  }

 private:
  TextSurface& otra_;
  std::mutex llave_;
};

}  // namespace pixmosa

// The WebArt page: every sampled pixel becomes one character in that pixel's colour.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

#include "platform/Picture.h"
#include "platform/Random.h"

namespace pixmosa {

// What the writer reads; the window fills it from its controls, the command line from its options.
struct WebSettings {
  bool exactCopy = false;
  int tamaño = 3;             // 1..5; every (6 - tamaño)th pixel is sampled
  int paleta = 0;             // 0 binary, 1 the user's text, anything else keeps the last one
  std::string textoPaleta{};  // 8-bit code page
  bool bordeArriba = false, bordeAbajo = false, bordeDerecha = false, bordeIzquierda = false;
};

// The state of the writer for the program's run; nothing of it is reset between two pages.
struct BasWeb {
  std::string Fondo = "#000000";    // the page's background
  std::string Paleta;               // characters that the mosaic cycles through, 8-bit code page
  std::int32_t PosicionPaleta = 0;  // 1-based position of the character last taken
};

struct ColorDeCelda {
  std::int16_t R, G, B;
  bool operator==(const ColorDeCelda&) const = default;
};

// The three parts of a colour number by truncating division; the colour outside a picture gives -1, 0, 0.
ColorDeCelda SplitCellColour(Colour c);

// The background text of a colour: "#" and the parts in hexadecimal. A part of 0..9 has a leading zero, one
// of 10..15 is a single letter.
std::string TextoDeFondo(Colour c);

// The palette as the settings ask for it. The binary one takes 200 random digits.
void PrepararPaleta(BasWeb& web, const WebSettings& settings, Random& random);

// The bytes that the page may have at most.
std::uint64_t MayorPagina(const WebSettings& settings, const Picture& picture);

// Writes the page, whole or not at all, after PrepararPaleta. `seguir` is called after each row; where it
// says no, nothing is written and the answer is false. Throws FileError.
bool EscribirWebArt(BasWeb& web, const WebSettings& settings, const Picture& picture,
                    const std::filesystem::path& file, const std::function<bool()>& seguir = {});

}  // namespace pixmosa

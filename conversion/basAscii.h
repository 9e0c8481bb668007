// From a picture to the produced text: character tables, the driver and the grayscale method.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "conversion/ConvertFormas.h"
#include "conversion/Palette3x2.h"
#include "platform/Errores.h"
#include "platform/Picture.h"
#include "platform/TextSurface.h"

namespace pixmosa {

// What the conversion reads; the window fills it from its controls, the command line from its options.
struct AsciiSettings {
  Font font;
  int size = 100;        // percent of the characters that fit across the screen, 1..198
  int luminosity = 0;    // -100..100, added twice to every gray level
  int palette = 0;       // 0..3, see kPalettes
  bool relleno = false;  // outlines: fill the insides of shapes
  int conversion = 0;    // of the grayscale mode: kGrayscale, kTono or kFormas
  AjustesDeFormas formas{};
  std::u32string caracteres{};  // to choose from instead of the palette, ascending; empty: the palette
};

struct CharacterPalette {
  const char* caption;  // UTF-8
  int first, last;      // codes, both included
};

inline constexpr std::array<CharacterPalette, 4> kPalettes = {{
    {"AsciiArt Extendido (32-255)", 32, 255},
    {"AsciiArt clasico (32-127)", 32, 127},
    {"Caracteres (a-Z)", 65, 122},
    {"Números (0-9)", 48, 57},
}};

enum Method { kGrayscale = 0, kEdges = 1, kAntiAlias = 2, kTono = 3, kFormas = 4 };

// The methods that choose among characters drawn smooth, and read every pixel of the picture.
constexpr bool EsDeFormas(int method) {
  return method == kTono || method == kFormas;
}

// The state of the conversion, one for the program's run.
struct BasAscii {
  std::array<float, 256>
      CharBrightness{};  // share of counted pixels in each code's cell, on a scale of 0..255
  float BrightnessMin = 0, BrightnessMax = 0;
  std::array<std::int32_t, 256> GrayToChar{};  // the code for each gray level
  Colour CountedColour = kWhite;               // white normally, black with the negative option
  float PaletteFirst = 32, PaletteLast = 255;
  std::string Elegidos;  // the codes to choose from within the range; empty: all of them
  std::int32_t AsciiColumns = 250;
  std::int32_t CellWidth = 1, CellHeight = 1;  // pixels of "A" in the chosen font
  pixmosa::Palette3x2 Palette3x2;              // loaded once at start-up
  double Proporcion = 0;                       // height by width of the reader's cell; 0: the font's own
  Repertorio Medidos{};                        // for kTono and kFormas; empty: stale, see PrepararRepertorio
  ClaridadHecha Claridades{};                  // of kTono and kFormas
  std::string ProducedText;                    // 8-bit code page, rows separated by CR LF
  std::string ProducedUtf8;  // the same where it has characters that the code page lacks; else empty
};

// Sets the palette range from settings.palette, or the codes of settings.caracteres where the code page has
// all of them, clears the tables, measures and builds the lookup.
void RebuildCharacterTables(BasAscii& ascii, const AsciiSettings& settings, TextSurface& surface);

// Measures the characters for kTono and kFormas, unless that has been done since the last change.
void PrepararRepertorio(BasAscii& ascii, const AsciiSettings& settings, TextSurface& surface);

// Measures the palette range in the font: CharBrightness, BrightnessMin, BrightnessMax and the cell.
void MeasureCharacterSet(BasAscii& ascii, const Font& font, TextSurface& surface);

// GrayToChar from CharBrightness: nearest brightness, ties to the lowest code.
void BuildGrayLookup(BasAscii& ascii);

// AsciiColumns from the size, the screen's width in pixels and CellWidth.
void ComputeColumnCount(BasAscii& ascii, int size, int screenWidth);

// A text of more characters than the program makes; what() says how many columns and rows it would have.
class TextoExcesivo : public ErrorDelPrograma {
 public:
  // `name`: the picture that it would be of; nothing for the picture at hand.
  TextoExcesivo(double columns, double rows, const std::string& name = {});
  double columnas, filas;
};

// The most characters of a text.
inline constexpr double kMasCaracteres = 400e6;
inline constexpr double kMasCaracteresDeFormas = 50e6;  // a character takes more memory while it is chosen

// Pixels of the scaled copy that a method converts: one for each character, 3 x 3 for kAntiAlias. Throws
// TextoExcesivo.
Extent ResizedExtent(const BasAscii& ascii, Extent source, int method);

// Runs a method on `resized`, a picture of ResizedExtent. False for an unknown method and for those of
// EsDeFormas, which leaves the text.
bool ConvertResized(BasAscii& ascii, const AsciiSettings& settings, const Picture& resized, int method);

// Runs kTono or kFormas after PrepararRepertorio: `size` is the text's, ResizedExtent of the whole picture,
// and `picture` that picture or the same made smaller.
void ConvertirFormas(BasAscii& ascii, const AsciiSettings& settings, const Picture& picture, Extent size,
                     int method);

// The text as UTF-8, rows separated by CR LF.
std::string TextoEnUtf8(const BasAscii& ascii);

// The driver: stretches `source` and converts it; ProducedText is replaced whole. `source` is not empty.
// False for an unknown method and for one of EsDeFormas without PrepararRepertorio. Throws TextoExcesivo,
// leaving the text.
bool GenerateAscii(BasAscii& ascii, const AsciiSettings& settings, const Picture& source, int method);

// One character a pixel. A row that is all gray-0 character is dropped and leaves a line break at the text's
// end.
std::string ConvertGrayscale(const BasAscii& ascii, int luminosity, const Picture& resized);

}  // namespace pixmosa

#include "conversion/basAscii.h"

#include <algorithm>
#include <cmath>

#include "conversion/ConvertAntiAlias.h"
#include "conversion/ConvertEdges.h"
#include "platform/CodePage.h"
#include "platform/Pixel.h"
#include "platform/Stretch.h"

namespace pixmosa {
namespace {

constexpr float kNeverChosen = 99999.0F;
constexpr int kControlCodes = 31;  // codes 0..30 are never chosen

// How many pixels of each of `count` cells standing below one another have exactly this colour.
std::vector<int> CountColour(const Picture& cells, int count, Colour colour) {
  std::vector<int> hits(count);
  const std::uint32_t wanted = PixelOfColour(colour);
  const std::size_t area = cells.PixelCount() / count;
  const std::uint32_t* p = cells.Pixels();
  for (int& n : hits) {
    n = std::count_if(p, p + area, [&](std::uint32_t v) { return Opaco(v) == wanted; });
    p += area;
  }
  return hits;
}

}  // namespace

void RebuildCharacterTables(BasAscii& ascii, const AsciiSettings& settings, TextSurface& surface) {
  ascii.Elegidos.clear();
  if (TodosEnLaPagina(settings.caracteres))
    for (const char32_t c : settings.caracteres) ascii.Elegidos += static_cast<char>(*ByteOfUnicode(c));
  const CharacterPalette& palette = kPalettes.at(ascii.Elegidos.empty() ? settings.palette : 0);
  ascii.PaletteFirst = palette.first;
  ascii.PaletteLast = palette.last;
  ascii.CharBrightness.fill(0);
  ascii.GrayToChar.fill(0);
  ascii.BrightnessMin = ascii.BrightnessMax = 0;
  MeasureCharacterSet(ascii, settings.font, surface);
  BuildGrayLookup(ascii);
}

void PrepararRepertorio(BasAscii& ascii, const AsciiSettings& settings, TextSurface& surface) {
  if (!ascii.Medidos.caracteres.empty()) return;
  const CharacterPalette& palette = kPalettes.at(settings.palette);
  const std::u32string characters =
      settings.caracteres.empty() ? CaracteresDeCodigos(palette.first, palette.last) : settings.caracteres;
  ascii.Medidos = MedirRepertorio(surface, settings.font, {ascii.CellWidth, ascii.CellHeight}, characters,
                                  ascii.CountedColour == kBlack);
}

void MeasureCharacterSet(BasAscii& ascii, const Font& font, TextSurface& surface) {
  ascii.Medidos = {};
  ascii.BrightnessMax = -1.0F;
  ascii.BrightnessMin = 256.0F;
  const Extent cell = surface.GetTextSize(font, "A");
  ascii.CellWidth = cell.width;
  ascii.CellHeight = cell.height;
  const bool chosen = !ascii.Elegidos.empty();
  std::fill_n(ascii.CharBrightness.begin(), chosen ? ascii.CharBrightness.size() : kControlCodes,
              kNeverChosen);

  const int first = Truncate(ascii.PaletteFirst), last = Truncate(ascii.PaletteLast);
  const std::vector<int> hits =
      CountColour(surface.PrintCharacters(font, cell, first, last), last - first + 1, ascii.CountedColour);
  // One column and one row outside the cell belong to the area, though none of their pixels can count.
  const float area = (cell.width + 1) * (cell.height + 1);
  for (int code = first; code <= last; ++code) {
    if (chosen && ascii.Elegidos.find(static_cast<char>(code)) == std::string::npos) continue;
    const float b = hits[code - first] / area * 255.0F;
    ascii.CharBrightness[code] = b;
    ascii.BrightnessMax = std::max(ascii.BrightnessMax, b);
    ascii.BrightnessMin = std::min(ascii.BrightnessMin, b);
  }
}

void BuildGrayLookup(BasAscii& ascii) {
  const double low = ascii.BrightnessMin, high = ascii.BrightnessMax;
  for (int g = 0; g < 256; ++g) {
    const float target = g / 255.0 * (high - low) + low;
    float best = 255.0F;
    std::int32_t code = 0;
    for (std::int32_t i = 0; i < 256; ++i) {
      const float distance = std::fabs(ascii.CharBrightness[i] - target);
      if (distance < best) {
        best = distance;
        code = i;
      }
    }
    ascii.GrayToChar[g] = code;
  }
}

void ComputeColumnCount(BasAscii& ascii, int size, int screenWidth) {
  const int n = size * (screenWidth / ascii.CellWidth);
  ascii.AsciiColumns = std::max(1, RoundHalfEven(n / 100.0));
}

TextoExcesivo::TextoExcesivo(double columns, double rows, const std::string& name)
    : ErrorDelPrograma("El texto " + (name.empty() ? "" : "de \"" + name + "\" ") +
                       "sería demasiado grande: " + std::to_string(std::llrint(columns)) + " x " +
                       std::to_string(std::llrint(rows)) + " caracteres."),
      columnas(columns),
      filas(rows) {}

Extent ResizedExtent(const BasAscii& ascii, Extent source, int method) {
  const int across = method == kAntiAlias ? 3 : 1, columns = across * ascii.AsciiColumns;
  const float width = source.width, perColumn = width / columns;
  const float cellHeight = ascii.CellHeight, own = cellHeight / ascii.CellWidth;
  const float cell = ascii.Proporcion > 0 ? static_cast<float>(ascii.Proporcion) : own;
  const float height = source.height / perColumn / cell;
  const double rows = height / across;
  if (rows * ascii.AsciiColumns > (EsDeFormas(method) ? kMasCaracteresDeFormas : kMasCaracteres))
    throw TextoExcesivo(ascii.AsciiColumns, rows);
  return {columns, std::max(1, RoundHalfEven(height))};
}

bool ConvertResized(BasAscii& ascii, const AsciiSettings& settings, const Picture& resized, int method) {
  if (method >= kGrayscale && method <= kAntiAlias) ascii.ProducedUtf8.clear();
  switch (method) {
    case kGrayscale:
      ascii.ProducedText = ConvertGrayscale(ascii, settings.luminosity, resized);
      return true;
    case kEdges:
      ascii.ProducedText = ConvertEdges(resized, settings.relleno);
      return true;
    case kAntiAlias:
      ascii.ProducedText = ConvertAntiAlias(resized, ascii.Palette3x2);
      return true;
    default:
      return false;
  }
}

void ConvertirFormas(BasAscii& ascii, const AsciiSettings& settings, const Picture& picture, Extent size,
                     int method) {
  const auto convert = method == kTono ? ConvertTono : ConvertFormas;
  // A picture that nobody else holds is not needed again.
  const std::u32string text = convert(ascii.Medidos, settings.formas, settings.luminosity, picture, size,
                                      picture.EsUnica() ? nullptr : &ascii.Claridades);
  std::string bytes, utf8;
  bool unicode = false;
  bytes.reserve(text.size() + 2 * static_cast<std::size_t>(size.height));
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (i > 0 && i % static_cast<std::size_t>(size.width) == 0) bytes += "\r\n";
    const auto code = ByteOfUnicode(text[i]);
    bytes += static_cast<char>(code.value_or('?'));
    unicode = unicode || !code;
  }
  for (std::size_t i = 0; unicode && i < text.size(); ++i) {
    if (i > 0 && i % static_cast<std::size_t>(size.width) == 0) utf8 += "\r\n";
    AppendUtf8(utf8, text[i]);
  }
  ascii.ProducedText = std::move(bytes);
  ascii.ProducedUtf8 = std::move(utf8);
}

std::string TextoEnUtf8(const BasAscii& ascii) {
  return ascii.ProducedUtf8.empty() ? Utf8OfBytes(ascii.ProducedText) : ascii.ProducedUtf8;
}

bool GenerateAscii(BasAscii& ascii, const AsciiSettings& settings, const Picture& source, int method) {
  if (method < kGrayscale || method > kFormas) return false;
  if (EsDeFormas(method)) {
    if (ascii.Medidos.caracteres.empty()) return false;
    ConvertirFormas(ascii, settings, source, ResizedExtent(ascii, source.Size(), method), method);
    return true;
  }
  return ConvertResized(ascii, settings, Stretch(source, ResizedExtent(ascii, source.Size(), method)),
                        method);
}

std::string ConvertGrayscale(const BasAscii& ascii, int luminosity, const Picture& resized) {
  // The character for every sum of the three parts, so that a pixel costs one addition and one look-up.
  std::array<char, 3 * 255 + 1> charOfSum{};
  for (int sum = 0; sum <= 3 * 255; ++sum)
    charOfSum[sum] = ascii.GrayToChar[ClampByte(RoundHalfEven(sum / 3.0) + 2 * luminosity)];
  const char dark = ascii.GrayToChar[0];

  const std::size_t width = resized.Width();
  std::string text;
  text.reserve((width + 2) * resized.Height());
  std::string row(width, ' ');
  int dropped = 0;
  for (int y = 0; y < resized.Height(); ++y) {
    const auto pixels = resized.Row(y);
    for (std::size_t x = 0; x < width; ++x) row[x] = charOfSum[SumaRGB(pixels[x])];
    if (row.find_first_not_of(dark) == std::string::npos) {
      ++dropped;
      continue;
    }
    if (y > dropped) text += "\r\n";
    text += row;
  }
  // The separators of the dropped rows all stand at the end; a text of dropped rows alone has one fewer.
  const int separators = dropped == resized.Height() ? dropped - 1 : dropped;
  for (int i = 0; i < separators; ++i) text += "\r\n";
  return text;
}

}  // namespace pixmosa

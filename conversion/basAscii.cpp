#include "conversion/basAscii.h"

#include <algorithm>
#include <cmath>

#include "conversion/ConvertAntiAlias.h"
#include "conversion/ConvertEdges.h"
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
  const CharacterPalette& palette = kPalettes.at(settings.palette);
  ascii.PaletteFirst = palette.first;
  ascii.PaletteLast = palette.last;
  ascii.CharBrightness.fill(0);
  ascii.GrayToChar.fill(0);
  ascii.BrightnessMin = ascii.BrightnessMax = 0;
  MeasureCharacterSet(ascii, settings.font, surface);
  BuildGrayLookup(ascii);
}

void MeasureCharacterSet(BasAscii& ascii, const Font& font, TextSurface& surface) {
  ascii.BrightnessMax = -1.0F;
  ascii.BrightnessMin = 256.0F;
  const Extent cell = surface.GetTextSize(font, "A");
  ascii.CellWidth = cell.width;
  ascii.CellHeight = cell.height;
  std::fill_n(ascii.CharBrightness.begin(), kControlCodes, kNeverChosen);

  const int first = Truncate(ascii.PaletteFirst), last = Truncate(ascii.PaletteLast);
  const std::vector<int> hits =
      CountColour(surface.PrintCharacters(font, cell, first, last), last - first + 1, ascii.CountedColour);
  // One column and one row outside the cell belong to the area, though none of their pixels can count.
  const float area = (cell.width + 1) * (cell.height + 1);
  for (int code = first; code <= last; ++code) {
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
  const float cellHeight = ascii.CellHeight, cell = cellHeight / ascii.CellWidth;
  const float height = source.height / perColumn / cell;
  const double rows = height / across;
  if (rows * ascii.AsciiColumns > kMasCaracteres) throw TextoExcesivo(ascii.AsciiColumns, rows);
  return {columns, std::max(1, RoundHalfEven(height))};
}

bool ConvertResized(BasAscii& ascii, const AsciiSettings& settings, const Picture& resized, int method) {
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

bool GenerateAscii(BasAscii& ascii, const AsciiSettings& settings, const Picture& source, int method) {
  if (method < kGrayscale || method > kAntiAlias) return false;
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

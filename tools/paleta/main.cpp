// Measures the ink of the printable characters in the six parts of their cell over several fixed-pitch fonts
// and writes what was measured, the ranking and the pattern file. Run by hand from the sources' folder:
//   paleta FONT...
#include <iostream>
#include <vector>

#include <QGuiApplication>

#include "platform/AtomicFile.h"
#include "platform/qt/QtTextSurface.h"
#include "tools/paleta/Clasificar.h"

namespace {

using namespace pixmosa;
using namespace pixmosa::paleta;

constexpr int kPoints = 36;

// The share of each part that a character inks, in thousandths.
Ink Measure(const Font& font, TextSurface& surface) {
  const Extent cell = surface.GetTextSize(font, "A");
  const Picture all = surface.PrintCharacters(font, cell, kFirst, kLast);
  Ink ink{};
  for (int c = 0; c < static_cast<int>(ink.size()); ++c)
    for (int part = 0; part < kParts; ++part) {
      const int x0 = part % 2 * cell.width / 2, x1 = (part % 2 + 1) * cell.width / 2;
      const int y0 = part / 2 * cell.height / 3, y1 = (part / 2 + 1) * cell.height / 3;
      int black = 0;
      for (int y = y0; y < y1; ++y)
        for (int x = x0; x < x1; ++x) black += all.ColourAt(x, c * cell.height + y) == kBlack;
      ink[static_cast<std::size_t>(c)][static_cast<std::size_t>(part)] =
          1000 * black / ((x1 - x0) * (y1 - y0));
    }
  return ink;
}

Ink Average(const std::vector<Font>& fonts, TextSurface& surface) {
  Ink sum{};
  for (const Font& font : fonts) {
    const Ink ink = Measure(font, surface);
    for (std::size_t c = 0; c < sum.size(); ++c)
      for (std::size_t part = 0; part < kParts; ++part) sum[c][part] += ink[c][part];
  }
  for (auto& parts : sum)
    for (int& share : parts) share /= static_cast<int>(fonts.size());
  return sum;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: paleta FONT...\n";
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication app(argc, argv);
  QtTextSurface surface;
  std::vector<Font> fonts;
  for (int i = 1; i < argc; ++i) fonts.push_back({argv[i], kPoints});
  const Ink ink = Average(fonts, surface);
  const Choice choice = Elegir(ink);
  EscribirArchivo("tools/paleta/tinta.txt", EscribirTinta(ink));
  EscribirArchivo("tools/paleta/clasificacion.txt", Clasificacion(ink, choice));
  EscribirArchivo("data/Paleta 3x2.txt", ArchivoDePaleta(choice));
  return 0;
}

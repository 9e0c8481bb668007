// Ranks the printable characters for each of the 64 patterns of two by three pixels, by the ink that they put
// in the six parts of their cell, and writes the pattern file and the ranking. Run by hand:
//   paleta "data/Paleta 3x2.txt" tools/paleta/clasificacion.txt FONT...
#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "platform/AtomicFile.h"
#include "platform/qt/QtTextSurface.h"
#include "tests/support/GuiApplication.h"

namespace {

using namespace pixmosa;
using Parts = std::array<double, 6>;  // top left, top right, middle left, ... bottom right; 0 paper, 1 as
                                      // dense as text gets

constexpr int kFirst = 32, kLast = 126, kPoints = 36, kPatterns = 64, kShown = 6;
constexpr double kUnwanted = 1.6;     // ink on paper disturbs more than paper on ink
constexpr double kPairPenalty = 0.3;  // how much worse two characters may fit when they mirror one another

// Characters that are each other's mirror image, and those that are their own.
const std::string kPairs = "()[]{}<>/\\bdpq";
const std::string kOwn = " !\"'*+-.:=AHIMOTUVWXYilmovwx^_|08#";

std::array<Parts, 128> Measure(const Font& font, TextSurface& surface) {
  const Extent cell = surface.GetTextSize(font, "A");
  const Picture all = surface.PrintCharacters(font, cell, kFirst, kLast);
  std::array<Parts, 128> ink{};
  double densest = 0;
  for (int code = kFirst; code <= kLast; ++code) {
    for (int part = 0; part < 6; ++part) {
      const int x0 = part % 2 * cell.width / 2, x1 = (part % 2 + 1) * cell.width / 2;
      const int y0 = part / 2 * cell.height / 3, y1 = (part / 2 + 1) * cell.height / 3;
      int black = 0;
      for (int y = y0; y < y1; ++y)
        for (int x = x0; x < x1; ++x) black += all.ColourAt(x, (code - kFirst) * cell.height + y) == kBlack;
      double& share = ink[static_cast<std::size_t>(code)][static_cast<std::size_t>(part)];
      share = static_cast<double>(black) / ((x1 - x0) * (y1 - y0));
      densest = std::max(densest, share);
    }
  }
  // The densest part of any character stands for full ink; the square root brings thin strokes nearer to it.
  for (Parts& parts : ink)
    for (double& share : parts) share = std::sqrt(share / densest);
  return ink;
}

double Distance(const Parts& ink, int pattern) {
  double d = 0;
  for (std::size_t part = 0; part < 6; ++part) {
    const double wanted = pattern >> (5 - part) & 1;
    const double off = ink[part] - wanted;
    d += off * off * (off > 0 ? kUnwanted : 1);
  }
  return d;
}

int Mirrored(int pattern) {
  return (pattern & 0b010101) << 1 | (pattern & 0b101010) >> 1;
}

// The mirror image of a character, or 0 where there is none.
char Mirror(char c) {
  if (kOwn.find(c) != std::string::npos) return c;
  const std::size_t at = kPairs.find(c);
  return at == std::string::npos ? '\0' : kPairs[at ^ 1];
}

std::string Rows(int pattern, const char* separator) {
  std::string s;
  for (int part = 0; part < 6; ++part) {
    if (part == 2 || part == 4) s += separator;
    s += pattern >> (5 - part) & 1 ? '@' : '.';
  }
  return s;
}

using Costs = std::array<std::array<double, 128>, kPatterns>;

Costs CostsOf(const std::vector<Font>& fonts, TextSurface& surface) {
  Costs costs{};
  for (const Font& font : fonts) {
    const auto ink = Measure(font, surface);
    for (int p = 0; p < kPatterns; ++p)
      for (std::size_t c = kFirst; c <= kLast; ++c)
        costs[static_cast<std::size_t>(p)][c] += Distance(ink[c], p) / static_cast<double>(fonts.size());
  }
  return costs;
}

std::vector<char> Ranked(const std::array<double, 128>& costs) {
  std::vector<char> order;
  for (char c = kFirst; c <= kLast; ++c) order.push_back(c);
  std::stable_sort(order.begin(), order.end(), [&](char a, char b) {
    return costs[static_cast<std::size_t>(a)] < costs[static_cast<std::size_t>(b)];
  });
  return order;
}

// One character for each pattern: the best, except that mirrored patterns take mirrored characters where the
// pair fits nearly as well as the two best ones do.
std::array<char, kPatterns> Choose(const Costs& costs) {
  std::array<char, kPatterns> chosen{};
  for (int p = 0; p < kPatterns; ++p) {
    const int m = Mirrored(p);
    const auto& here = costs[static_cast<std::size_t>(p)];
    const auto& there = costs[static_cast<std::size_t>(m)];
    const char first = Ranked(here)[0], second = Ranked(there)[0];
    double best =
        here[static_cast<std::size_t>(first)] + there[static_cast<std::size_t>(second)] + kPairPenalty;
    chosen[static_cast<std::size_t>(p)] = first;
    for (char c = kFirst; c <= kLast; ++c) {
      const char other = Mirror(c);
      if (!other || (p == m && other != c)) continue;
      const double cost = here[static_cast<std::size_t>(c)] + there[static_cast<std::size_t>(other)];
      if (cost >= best) continue;
      best = cost;
      chosen[static_cast<std::size_t>(p)] = c;
    }
  }
  chosen[0] = ' ';
  return chosen;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) {
    std::cerr << "usage: paleta PATTERN-FILE RANKING-FILE FONT...\n";
    return 2;
  }
  test::NeedGuiApplication();
  QtTextSurface surface;
  std::vector<Font> fonts;
  for (int i = 3; i < argc; ++i) fonts.push_back({argv[i], kPoints});
  const Costs costs = CostsOf(fonts, surface);
  const auto chosen = Choose(costs);

  std::string file, ranking = "# pattern, chosen character, the best characters with their distance; fonts:";
  for (const Font& font : fonts) ranking += " \"" + font.name + "\"";
  ranking += "\n";
  for (int p = 0; p < kPatterns; ++p) {
    const auto& row = costs[static_cast<std::size_t>(p)];
    file += Rows(p, "\r\n") + "\r\n" + chosen[static_cast<std::size_t>(p)] + "\r\n\r\n";
    ranking += Rows(p, "/") + " " + chosen[static_cast<std::size_t>(p)] + " ";
    const std::vector<char> order = Ranked(row);
    for (std::size_t i = 0; i < kShown; ++i) {
      char number[16];
      std::snprintf(number, sizeof number, "%.2f", row[static_cast<std::size_t>(order[i])]);
      ranking += std::string("  ") + order[i] + " " + number;
    }
    ranking += "\n";
  }
  EscribirArchivo(argv[1], file);
  EscribirArchivo(argv[2], ranking);
  return 0;
}

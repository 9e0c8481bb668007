#include "tools/paleta/Clasificar.h"

#include <algorithm>
#include <cstdio>
#include <sstream>
#include <vector>

#include "platform/Lines.h"

namespace pixmosa::paleta {
namespace {

constexpr double kFull = 0.85;  // a part counts as full from the ink that this share of all parts stays below
constexpr int kShown = 6;

constexpr std::string_view kPairs = "()[]{}<>/\\bdpqJL`'";
constexpr std::string_view kSymmetric = " !\"*+-.:=AHIMOTUVWXYilmovwx^_|08#";

// How full each part of each character is, 0..1. Text has far more ink in the middle of its cell than at the
// top and bottom, so each of the three rows has its own measure of full.
using Fullness = std::array<std::array<double, kParts>, kLast - kFirst + 1>;

Fullness FullnessOf(const Ink& ink) {
  Fullness full{};
  for (std::size_t row = 0; row < kParts; row += 2) {
    std::vector<int> shares;
    for (const auto& parts : ink) shares.insert(shares.end(), {parts[row], parts[row + 1]});
    std::sort(shares.begin(), shares.end());
    const int most =
        std::max(1, shares[static_cast<std::size_t>(kFull * static_cast<double>(shares.size()))]);
    for (std::size_t c = 0; c < ink.size(); ++c)
      for (std::size_t part = row; part < row + 2; ++part)
        full[c][part] = std::min(1.0, static_cast<double>(ink[c][part]) / most);
  }
  return full;
}

bool IsInk(int pattern, std::size_t part) {
  return (pattern >> (5 - part) & 1) != 0;
}

double Distance(const Fullness& full, char c, int pattern) {
  double d = 0;
  for (std::size_t part = 0; part < kParts; ++part) {
    const double off = full[static_cast<std::size_t>(c - kFirst)][part] - IsInk(pattern, part);
    d += off * off;
  }
  return d;
}

int Mirrored(int pattern) {
  return (pattern & 0b010101) << 1 | (pattern & 0b101010) >> 1;
}

// A row of the pattern after the other, with `separator` between.
std::string Rows(int pattern, const char* separator) {
  std::string s;
  for (std::size_t part = 0; part < kParts; ++part) {
    if (part == 2 || part == 4) s += separator;
    s += IsInk(pattern, part) ? '@' : '.';
  }
  return s;
}

}  // namespace

std::string EscribirTinta(const Ink& ink) {
  std::string text;
  for (int c = kFirst; c <= kLast; ++c) {
    text += static_cast<char>(c);
    for (const int share : ink[static_cast<std::size_t>(c - kFirst)]) text += " " + std::to_string(share);
    text += "\n";
  }
  return text;
}

Ink LeerTinta(std::string_view text) {
  Ink ink{};
  while (!text.empty()) {
    const std::string line(TakeLine(text));
    const auto c = static_cast<std::size_t>(line.empty() ? 0 : line[0] - kFirst);
    if (c >= ink.size()) continue;
    std::istringstream numbers(line.substr(1));
    for (int& share : ink[c]) numbers >> share;
  }
  return ink;
}

char Espejo(char c) {
  if (kSymmetric.find(c) != std::string_view::npos) return c;
  const std::size_t at = kPairs.find(c);
  return at == std::string_view::npos ? '\0' : kPairs[at ^ 1];
}

Choice Elegir(const Ink& ink) {
  const Fullness full = FullnessOf(ink);
  Choice choice{};
  choice.fill(' ');
  for (int p = 1; p < kPatterns; ++p) {
    const int m = Mirrored(p);
    double best = 2 * kParts;
    for (char c = kFirst; c <= kLast; ++c) {
      const char mirror = Espejo(c);
      if (!mirror || (p == m && mirror != c)) continue;
      const double d = Distance(full, c, p) + Distance(full, mirror, m);
      if (d >= best) continue;
      best = d;
      choice[static_cast<std::size_t>(p)] = c;
    }
  }
  return choice;
}

std::string ArchivoDePaleta(const Choice& choice) {
  std::string file;
  for (int p = 0; p < kPatterns; ++p)
    file += Rows(p, "\r\n") + "\r\n" + choice[static_cast<std::size_t>(p)] + "\r\n\r\n";
  return file;
}

std::string Clasificacion(const Ink& ink, const Choice& choice) {
  const Fullness full = FullnessOf(ink);
  std::string text = "# pattern, chosen character, the best characters by themselves with their distance\n";
  for (int p = 0; p < kPatterns; ++p) {
    std::vector<char> order;
    for (char c = kFirst; c <= kLast; ++c) order.push_back(c);
    std::stable_sort(order.begin(), order.end(),
                     [&](char a, char b) { return Distance(full, a, p) < Distance(full, b, p); });
    text += Rows(p, "/") + " " + choice[static_cast<std::size_t>(p)] + " ";
    for (std::size_t i = 0; i < kShown; ++i) {
      char number[16];
      std::snprintf(number, sizeof number, "%.2f", Distance(full, order[i], p));
      text += std::string("  ") + order[i] + " " + number;
    }
    text += "\n";
  }
  return text;
}

}  // namespace pixmosa::paleta

#include "editor/PartesDeMarco.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace pixmosa {
namespace {

constexpr char32_t kPrimero = 0x2500, kUltimo = 0x257F, kArco = 0x256D, kFinDeArcos = 0x2570;

// U+2500..U+257F: up, right, down, left.
constexpr char kBrazos[] =
    "0101 0202 1010 2020 0101 0202 1010 2020 0101 0202 1010 2020 0110 0210 0120 0220 "
    "0011 0012 0021 0022 1100 1200 2100 2200 1001 1002 2001 2002 1110 1210 2110 1120 "
    "2120 2210 1220 2220 1011 1012 2011 1021 2021 2012 1022 2022 0111 0112 0211 0212 "
    "0121 0122 0221 0222 1101 1102 1201 1202 2101 2102 2201 2202 1111 1112 1211 1212 "
    "2111 1121 2121 2112 2211 1122 1221 2212 1222 2122 2221 2222 0101 0202 1010 2020 "
    "0303 3030 0310 0130 0330 0013 0031 0033 1300 3100 3300 1003 3001 3003 1310 3130 "
    "3330 1013 3031 3033 0313 0131 0333 1303 3101 3303 1313 3131 3333 0110 0011 1001 "
    "1100 0000 0000 0000 0001 1000 0100 0010 0002 2000 0200 0020 0201 1020 0102 2010";

constexpr int kPesos[] = {1, 1, 3, 1, 2};  // of the styles

struct Parecido {
  std::u32string_view de;
  char a;
};

constexpr Parecido kParecidos[] = {
    {U"←◀◄⇐", '<'},      {U"→▶►⇒", '>'},    {U"↑▲⇑", '^'}, {U"↓▼⇓", 'v'}, {U"█▓■▉▊▋▇▆▅◆●", '#'},
    {U"▒▌▐▙▛▜▟◇○", '%'}, {U"░▖▗▘▝▁▂", '.'}, {U"▀▔", '"'},  {U"▄▃", '_'},  {U"▏▎▍▕", '|'},
    {U"╱", '/'},         {U"╲", '\\'},      {U"╳", 'X'},
};

char DeAscii(const Brazos& arms) {
  const bool across = arms[kIzquierda] || arms[kDerecha], upright = arms[kArriba] || arms[kAbajo];
  return across && upright ? '+' : upright ? '|' : '-';
}

}  // namespace

Brazos BrazosDe(char32_t c, bool ascii) {
  if (ascii && c == U'-') return {0, 1, 0, 1};
  if (ascii && c == U'|') return {1, 0, 1, 0};
  if (ascii && c == U'+') return {1, 1, 1, 1};
  Brazos arms{};
  if (c < kPrimero || c > kUltimo) return arms;
  for (std::size_t i = 0; i < arms.size(); ++i) arms[i] = kBrazos[std::size_t{c - kPrimero} * 5 + i] - '0';
  return arms;
}

char32_t CaracterDe(const Brazos& arms) {
  if (arms == Brazos{}) return 0;
  for (char32_t c = kPrimero; c <= kUltimo; ++c)
    if (BrazosDe(c) == arms) return c;
  return 0;
}

char32_t Unir(char32_t there, const Brazos& arms, EstiloDeMarco style) {
  const bool ascii = style == EstiloDeMarco::Ascii;
  const int weight = kPesos[static_cast<int>(style)];
  Brazos both = BrazosDe(there, ascii);
  for (std::size_t i = 0; i < both.size(); ++i)
    if (arms[i]) both[i] = weight;
  if (ascii) return static_cast<char32_t>(DeAscii(both));
  if (style == EstiloDeMarco::Redondo)
    for (char32_t c = kArco; c <= kFinDeArcos; ++c)
      if (BrazosDe(c) == both) return c;
  if (const char32_t c = CaracterDe(both)) return c;
  // No character joins these weights: all take the new one.
  for (int& arm : both)
    if (arm) arm = weight;
  return CaracterDe(both);
}

char EnAscii(char32_t c) {
  if (const Brazos arms = BrazosDe(c); arms != Brazos{}) return DeAscii(arms);
  const auto* like = std::ranges::find_if(
      kParecidos, [c](const Parecido& p) { return p.de.find(c) != std::u32string_view::npos; });
  return like == std::end(kParecidos) ? '?' : like->a;
}

}  // namespace pixmosa

#include "figlet/Fundir.h"

namespace pixmosa {
namespace {

constexpr std::u32string_view kSobreSubrayado = U"|/\\[]{}()<>";

// The class of a character in the hierarchy, the higher one wins; 0 for one that is in none.
int ClaseDe(char32_t c) {
  constexpr std::u32string_view kClases[] = {U"|", U"/\\", U"[]", U"{}", U"()", U"<>"};
  for (int i = 0; i < 6; ++i)
    if (kClases[i].find(c) != std::u32string_view::npos) return i + 1;
  return 0;
}

bool EsPareja(char32_t a, char32_t b, std::u32string_view pair) {
  return (a == pair[0] && b == pair[1]) || (a == pair[1] && b == pair[0]);
}

char32_t DeSubrayado(char32_t a, char32_t b) {
  if (a == U'_' && kSobreSubrayado.find(b) != std::u32string_view::npos) return b;
  if (b == U'_' && kSobreSubrayado.find(a) != std::u32string_view::npos) return a;
  return 0;
}

char32_t DeJerarquia(char32_t a, char32_t b) {
  const int x = ClaseDe(a), y = ClaseDe(b);
  return x == 0 || y == 0 || x == y ? 0 : x > y ? a : b;
}

char32_t DeParejas(char32_t a, char32_t b) {
  for (const std::u32string_view pair : {U"[]", U"{}", U"()"})
    if (EsPareja(a, b, pair)) return U'|';
  return 0;
}

char32_t DeEquis(char32_t left, char32_t right) {
  if (left == U'/' && right == U'\\') return U'|';
  if (left == U'\\' && right == U'/') return U'Y';
  return left == U'>' && right == U'<' ? U'X' : 0;
}

}  // namespace

char32_t FundirHorizontal(char32_t left, char32_t right, std::int32_t rules, bool leftwards) {
  if ((rules & kReglasHorizontales) == 0) {
    if (left == kBlancoDuro) return right;
    return right == kBlancoDuro || leftwards ? left : right;
  }
  if (left == kBlancoDuro || right == kBlancoDuro)
    return left == right && (rules & kBlancosDuros) ? kBlancoDuro : 0;
  if ((rules & kIguales) && left == right) return left;
  char32_t c = rules & kSubrayado ? DeSubrayado(left, right) : 0;
  if (c == 0 && (rules & kJerarquia)) c = DeJerarquia(left, right);
  if (c == 0 && (rules & kParejas)) c = DeParejas(left, right);
  if (c == 0 && (rules & kEquis)) c = DeEquis(left, right);
  return c;
}

char32_t FundirVertical(char32_t upper, char32_t lower, std::int32_t rules) {
  if ((rules & kReglasVerticales) == 0) return lower;
  if ((rules & kIgualesVertical) && upper == lower) return upper;
  char32_t c = rules & kSubrayadoVertical ? DeSubrayado(upper, lower) : 0;
  if (c == 0 && (rules & kJerarquiaVertical)) c = DeJerarquia(upper, lower);
  if (c == 0 && (rules & kLineaHorizontal) && EsPareja(upper, lower, U"-_")) c = U'=';
  return c;
}

}  // namespace pixmosa

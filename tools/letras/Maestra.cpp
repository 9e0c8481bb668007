#include "tools/letras/Maestra.h"

#include <algorithm>
#include <string>

#include "platform/CodePage.h"

namespace pixmosa::letras {
namespace {

constexpr int kBlank = 3;         // columns of the blank
constexpr int kX = kCapital + 2;  // first row of the small letters

// Parts over or under a letter. `row` is the first row over a capital; over a small letter it is two lower.
struct Accent {
  std::vector<std::string_view> rows;
  int row;
  std::string_view made, from;  // UTF-8: the letters that come out and their base letters
};

const std::vector<Accent> kAccents = {
    {{"# ", " #"}, 0, "ÀÈÌÒÙàèìòù", "AEIOUaeiou"},
    {{" #", "# "}, 0, "ÁÉÍÓÚÝáéíóúý", "AEIOUYaeiouy"},
    {{" # ", "# #"}, 0, "ÂÊÎÔÛâêîôû", "AEIOUaeiou"},
    {{" ## #", "#  # "}, 0, "ÃÑÕãñõ", "ANOano"},
    {{"# #"}, 1, "ÄËÏÖÜŸäëïöüÿ", "AEIOUYaeiouy"},
    {{" # ", "# #", " # "}, 0, "Åå", "Aa"},
    {{"# #", " # "}, 0, "ŠŽšž", "SZsz"},
    {{" #", "##"}, kLinea, "Çç", "Cc"},
};

int Code(char byte) {
  return static_cast<unsigned char>(byte);
}

// The shapes of one sheet into the alphabet.
void ReadSheet(std::string_view sheet, Alfabeto& to) {
  std::vector<std::string> rows;
  for (std::size_t at = 0; at <= sheet.size();) {
    const std::size_t end = std::min(sheet.find('\n', at), sheet.size());
    rows.push_back(BytesOfUtf8(sheet.substr(at, end - at)));
    at = end + 1;
  }
  const std::string& heads = rows.at(0);
  for (std::size_t x = heads.find_first_not_of(' '); x != std::string::npos;) {
    const std::size_t next = heads.find_first_not_of(' ', x + 1);
    Mapa m(static_cast<int>(std::min(next, x + 12) - x), kFilas);
    for (int y = 1; y < static_cast<int>(rows.size()); ++y) {
      const std::string& row = rows[static_cast<std::size_t>(y)];
      for (int i = 0; i < m.Width() && x + static_cast<std::size_t>(i) < row.size(); ++i)
        if (row[x + static_cast<std::size_t>(i)] == '#') m.Set(i, kCapital - 2 + y);
    }
    to[static_cast<std::size_t>(Code(heads[x]))] = Recortar(m);
    x = next;
  }
}

// `part` over the middle of `base`, its first row at `top`.
Mapa Join(const Mapa& base, const std::vector<std::string_view>& part, int top) {
  const int wide = static_cast<int>(part.at(0).size());
  const int room = std::max(base.Width(), wide);
  const int left = (room - base.Width()) / 2, at = (room - wide) / 2;
  Mapa m = Orlar(base, left, 0, room - base.Width() - left, 0);
  for (std::size_t y = 0; y < part.size(); ++y)
    for (int x = 0; x < wide; ++x)
      if (part[y][static_cast<std::size_t>(x)] == '#') m.Set(at + x, top + static_cast<int>(y));
  return m;
}

void AddAccents(Alfabeto& to) {
  for (const Accent& accent : kAccents) {
    const std::string made = BytesOfUtf8(accent.made);
    for (std::size_t i = 0; i < made.size(); ++i) {
      const char letter = accent.from[i];
      Mapa base = to[static_cast<std::size_t>(Code(letter))];
      const bool small = letter >= 'a';
      if (letter == 'i')  // the accent takes the place of the dot
        for (int y = 0; y < kX; ++y) base.Set(0, y, false);
      const int top = accent.row + (small && accent.row < kLinea ? kX - kCapital : 0);
      to[static_cast<std::size_t>(Code(made[i]))] = Join(base, accent.rows, top);
    }
  }
}

// The opening marks: the closing ones turned round, hung from the top of the small letters.
Mapa TurnedRound(const Mapa& m) {
  Mapa t(m.Width(), kFilas);
  for (int y = kCapital; y < kLinea; ++y)
    for (int x = 0; x < m.Width(); ++x) t.Set(m.Width() - 1 - x, kX + kLinea - 1 - y, m.At(x, y));
  return t;
}

}  // namespace

Alfabeto Maestra() {
  Alfabeto a;
  for (const std::string_view sheet : kHojas) ReadSheet(sheet, a);
  AddAccents(a);
  a[0xBF] = TurnedRound(a['?']);
  a[0xA1] = TurnedRound(a['!']);
  a[0xAD] = a['-'];
  a[' '] = a[0xA0] = Mapa(kBlank, kFilas);
  return a;
}

}  // namespace pixmosa::letras

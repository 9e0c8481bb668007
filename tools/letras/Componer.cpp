#include "tools/letras/Componer.h"

#include <algorithm>

#include "platform/CodePage.h"

namespace pixmosa::letras {
namespace {

constexpr std::size_t kCedilla = 0xB8;

// The mark, and in UTF-8 the letters that come out and their base letters.
struct Acento {
  std::size_t mark;
  std::string_view made, from;
};
constexpr std::array<Acento, 8> kAcentos = {{
    {'`', "ÀÈÌÒÙàèìòù", "AEIOUaeiou"},
    {0xB4, "ÁÉÍÓÚÝáéíóúý", "AEIOUYaeiouy"},
    {0x88, "ÂÊÎÔÛâêîôû", "AEIOUaeiou"},
    {0x98, "ÃÑÕãñõ", "ANOano"},
    {0xA8, "ÄËÏÖÜŸäëïöüÿ", "AEIOUYaeiouy"},
    {kAnillo, "Åå", "Aa"},
    {kCaron, "ŠŽšž", "SZsz"},
    {kCedilla, "Çç", "Cc"},
}};

// Signs made of others side by side, parted by `gap` columns.
struct Serie {
  std::size_t made;
  std::string_view parts;
  int gap;
};
constexpr std::array<Serie, 9> kSeries = {{
    {0x82, ",", 0},
    {0xAD, "-", 0},
    {0x84, ",,", 1},
    {0x93, "\x91\x91", 1},
    {0x94, "\x92\x92", 1},
    {0x85, "...", 1},
    {0xAB, "\x8B\x8B", 0},
    {0xBB, "\x9B\x9B", 0},
    {0x96, "--", 0},
}};

std::size_t Code(char c) {
  return static_cast<unsigned char>(c);
}

int FirstRow(const Filas& rows) {
  const auto it = std::find_if(rows.begin(), rows.end(), [](const std::string& r) { return !EsBlanca(r); });
  return static_cast<int>(it - rows.begin());
}

// Rows of the mark from its first to its last that is not blank.
Filas Core(const Filas& rows) {
  Filas core(rows.begin() + FirstRow(rows), rows.end());
  while (EsBlanca(core.back())) core.pop_back();
  return core;
}

// The mark over the middle of the letter's first row, or where it is drawn when it belongs below.
Filas Marked(const Filas& letter, const Filas& mark, const Hoja& sheet, bool below) {
  const Filas core = Core(mark);
  const int first = FirstRow(letter);
  const std::string& ink = letter[static_cast<std::size_t>(below ? sheet.linea - 1 : first)];
  const int middle = static_cast<int>(ink.find_first_not_of(' ') + ink.find_last_not_of(' ')) + 1;
  const int wide = static_cast<int>(core[0].size());
  const int left = (middle - wide + (middle - wide < 0 ? 0 : 1)) / 2;
  const int top = below ? FirstRow(mark) : std::max(0, first - sheet.hueco - static_cast<int>(core.size()));
  const int push = std::max(0, -left);
  Filas rows;
  for (const std::string& row : letter)
    rows.push_back(std::string(static_cast<std::size_t>(push), ' ') + row);
  for (std::size_t y = 0; y < core.size(); ++y) {
    std::string& row = rows[static_cast<std::size_t>(top) + y];
    row.resize(std::max(row.size(), static_cast<std::size_t>(left + push + wide)), ' ');
    for (std::size_t x = 0; x < core[y].size(); ++x)
      if (core[y][x] != ' ') row[static_cast<std::size_t>(left + push) + x] = core[y][x];
  }
  return Recortadas(rows);
}

Filas Joined(const Hoja& sheet, const Serie& series) {
  Filas rows(static_cast<std::size_t>(sheet.filas));
  for (const char part : series.parts) {
    const Filas& shape = sheet[Code(part)];
    if (shape.empty()) return {};
    for (std::size_t y = 0; y < rows.size(); ++y)
      rows[y] += (rows[y].empty() ? "" : std::string(static_cast<std::size_t>(series.gap), ' ')) + shape[y];
  }
  return rows;
}

// Turned round, from the top of the small letters down.
Filas TurnedRound(const Filas& shape, const Hoja& sheet) {
  Filas core = Core(shape);
  std::reverse(core.begin(), core.end());
  Filas rows(static_cast<std::size_t>(sheet.filas), std::string(core[0].size(), ' '));
  const int top = std::min(FirstRow(sheet['o']), sheet.filas - static_cast<int>(core.size()));
  for (std::size_t y = 0; y < core.size(); ++y) {
    std::reverse(core[y].begin(), core[y].end());
    rows[static_cast<std::size_t>(top) + y] = core[y];
  }
  return rows;
}

bool OnlyBlocks(const Filas& shape) {
  return !shape.empty() && std::all_of(shape.begin(), shape.end(), [](const std::string& row) {
    return row.find_first_not_of(" #") == std::string::npos;
  });
}

void AddMarked(const Acento& accent, Hoja& sheet) {
  const std::string made = BytesOfUtf8(accent.made);
  for (std::size_t i = 0; i < made.size(); ++i) {
    const std::size_t from = Code(accent.from[i]);
    const bool below = accent.mark == kCedilla;
    const Filas& base = sheet[from == 'i' ? kSinPunto : below ? from : Portadora(sheet, from)];
    Filas& letter = sheet[Code(made[i])];
    if (letter.empty() && !base.empty()) letter = Marked(base, sheet[accent.mark], sheet, below);
  }
}

}  // namespace

bool EsMarca(std::size_t code) {
  return code == kCaron ||
         std::any_of(kAcentos.begin(), kAcentos.end(), [&](const Acento& a) { return a.mark == code; });
}

std::size_t Portadora(const Hoja& sheet, std::size_t letter) {
  constexpr std::string_view kCapitals = "AEINOSUYZ";
  const std::size_t at = kCapitals.find(static_cast<char>(letter));
  if (at == std::string_view::npos || sheet[kAnillo + 1 + at].empty()) return letter;
  return kAnillo + 1 + at;
}

void Componer(Hoja& sheet) {
  for (const Acento& accent : kAcentos) AddMarked(accent, sheet);
  for (const Serie& series : kSeries)
    if (sheet[series.made].empty()) sheet[series.made] = Joined(sheet, series);
  if (sheet[0xBF].empty() && OnlyBlocks(sheet['?'])) sheet[0xBF] = TurnedRound(sheet['?'], sheet);
  if (sheet[0xA1].empty() && OnlyBlocks(sheet['!'])) sheet[0xA1] = TurnedRound(sheet['!'], sheet);
}

}  // namespace pixmosa::letras

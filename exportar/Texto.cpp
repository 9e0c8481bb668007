#include "exportar/Texto.h"

#include "platform/CodePage.h"

namespace pixmosa {
namespace {

struct Rango {
  char32_t primero, ultimo;
};

// Controls, marks of width zero and of direction, surrogates and noncharacters.
constexpr Rango kSinAncho[] = {{0, 0x1F},        {0x7F, 0x9F},     {0x200B, 0x200F},        {0x2028, 0x202E},
                               {0x2060, 0x206F}, {0xD800, 0xDFFF}, {0xFE00, 0xFE0F},        {0xFEFF, 0xFEFF},
                               {0xFFF9, 0xFFFB}, {0xFFFE, 0xFFFF}, {0x110000, ~char32_t{0}}};

constexpr char32_t kGuionOpcional = 0xAD, kEspacioFijo = 0xA0, kBrailleVacio = 0x2800;

}  // namespace

char32_t Dibujable(char32_t c) {
  for (const Rango& r : kSinAncho)
    if (c >= r.primero && c <= r.ultimo) return U' ';
  return c == kGuionOpcional ? U'-' : c;
}

bool EsBlanco(char32_t c) {
  return Dibujable(c) == U' ' || c == kEspacioFijo || c == kBrailleVacio;
}

bool EsUsual(char32_t c) {
  constexpr std::u32string_view kLineas = U"─│┌┐└┘├┤┬┴┼", kBloques = U"▀▄█▌▐░▒▓";
  return ByteOfUnicode(c) || (c >= 0x2550 && c <= 0x256C) || kLineas.find(c) != kLineas.npos ||
         kBloques.find(c) != kBloques.npos;
}

void AppendEscapado(std::string& to, char32_t c) {
  if (c == U'&') {
    to += "&amp;";
  } else if (c == U'<') {
    to += "&lt;";
  } else if (c == U'>' && to.ends_with(']')) {
    to += "&gt;";
  } else {
    AppendUtf8(to, c);
  }
}

std::string Escapado(std::string_view utf8) {
  std::string s;
  while (!utf8.empty()) {
    const char32_t c = Dibujable(NextUtf8(utf8));
    if (c == U'"') {
      s += "&quot;";
    } else if (c == U'>') {
      s += "&gt;";
    } else {
      AppendEscapado(s, c);
    }
  }
  return s;
}

std::string CadenaCss(std::string_view utf8) {
  constexpr std::string_view kSeguros = " -_.,()+";
  std::string s = "\"";
  while (!utf8.empty()) {
    const char32_t c = NextUtf8(utf8);
    const bool plain = c >= 0x80 || (c >= U'0' && c <= U'9') || ((c | 32) >= U'a' && (c | 32) <= U'z') ||
                       kSeguros.find(static_cast<char>(c)) != std::string_view::npos;
    if (plain) {
      AppendUtf8(s, c);
    } else {
      s += '\\' + Hexadecimal(static_cast<Colour>(c & 0x7F) << 16).substr(5) + ' ';
    }
  }
  return s + '"';
}

std::string Hexadecimal(Colour colour) {
  constexpr char kDigitos[] = "0123456789abcdef";
  const ColourParts parts = SplitColour(colour);
  std::string s = "#";
  for (const int part : {parts.red, parts.green, parts.blue}) {
    s += kDigitos[part >> 4];
    s += kDigitos[part & 15];
  }
  return s;
}

std::vector<Tramo> TramosDe(const Fila& row, bool color) {
  std::vector<Tramo> runs;
  for (std::size_t x = 0; x < row.size(); ++x) {
    const bool blank = EsBlanco(row[x].caracter);
    const Colour ink = color && !blank ? row[x].tinta : kNoColour;
    const bool joins = !runs.empty() && runs.back().papel == row[x].papel &&
                       (blank || runs.back().blanco || runs.back().tinta == ink);
    if (!joins) runs.push_back({x, x, ink, row[x].papel, true});
    Tramo& run = runs.back();
    if (run.blanco) run.tinta = ink;
    run.blanco = run.blanco && blank;
    run.hasta = x + 1;
  }
  return runs;
}

}  // namespace pixmosa

#include "conversion/Caracteres.h"

#include <algorithm>

#include "conversion/Malla.h"
#include "platform/CodePage.h"

namespace pixmosa {
namespace {

constexpr char32_t kGuionOpcional = 0xAD;

struct JuegoConNombre {
  std::string_view nombre;
  char32_t first, last;
};
constexpr std::array<JuegoConNombre, 3> kJuegos = {{
    {"bloques", 0x2580, 0x259F},
    {"braille", 0x2801, 0x28FF},
    {"cajas", 0x2500, 0x257F},
}};

bool EsControl(char32_t c) {
  return c < 32 || (c >= 127 && c < 160) || c == 0xFFFD;
}

}  // namespace

std::u32string CaracteresDeCodigos(int first, int last) {
  std::u32string all;
  for (int code = first; code <= last; ++code) all += UnicodeOfByte(static_cast<unsigned char>(code));
  return all;
}

std::u32string JuegoDeCaracteres(std::string_view utf8) {
  std::u32string set;
  const auto* named =
      std::find_if(kJuegos.begin(), kJuegos.end(), [&](const auto& j) { return j.nombre == utf8; });
  if (named != kJuegos.end())
    for (char32_t c = named->first; c <= named->last; ++c) set += c;
  else
    while (!utf8.empty()) set += NextUtf8(utf8);
  std::erase_if(set, EsControl);
  std::sort(set.begin(), set.end());
  set.erase(std::unique(set.begin(), set.end()), set.end());
  std::erase(set, U' ');
  if (set.empty()) return set;
  set.resize(std::min(set.size(), kMasCaracteresDeJuego - 1));
  return U' ' + set;
}

bool TodosEnLaPagina(std::u32string_view characters) {
  return std::all_of(characters.begin(), characters.end(),
                     [](char32_t c) { return ByteOfUnicode(c).has_value(); });
}

std::vector<CaracterMedido> MedirCaracteres(TextSurface& surface, const Font& font, Extent cell,
                                            std::u32string_view characters, bool negative) {
  const std::vector<std::uint8_t> ink = surface.PrintSmooth(font, cell, 1, characters);
  const auto area = static_cast<std::size_t>(cell.width) * static_cast<std::size_t>(cell.height);
  std::vector<CaracterMedido> measured;
  std::vector<float> one(area);
  for (std::size_t i = 0; i < characters.size(); ++i) {
    const auto* p = ink.data() + i * area;
    const bool blank = std::all_of(p, p + area, [](int v) { return v == 0; });
    if (characters[i] == kGuionOpcional || (blank && characters[i] != U' ')) continue;
    std::transform(p, p + area, one.begin(),
                   [&](int v) { return static_cast<float>(negative ? v : 255 - v) / 255; });
    const Malla sub = MediaDe(one, cell, {kSubAncho, kSubAlto});
    CaracterMedido m{characters[i], {}, 0};
    for (std::size_t s = 0; s < kSubceldas; ++s) {
      m.luz[s] = static_cast<double>(sub.valores[s]);
      m.media += m.luz[s] / kSubceldas;
    }
    measured.push_back(m);
  }
  return measured;
}

}  // namespace pixmosa

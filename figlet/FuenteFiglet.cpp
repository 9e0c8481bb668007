#include "figlet/FuenteFiglet.h"

#include <algorithm>
#include <charconv>

#include "platform/CodePage.h"

namespace pixmosa {
namespace {

constexpr std::u32string_view kEspanol = U"ñáéíóúü¿¡«»€ÑÁÉÍÓÚÜ", kAlfabeto = U"abcdefghijklmnopqrstuvwxyz";
constexpr std::size_t kHeaderNumbers = 6;  // where they begin: behind the signature and the hard blank

bool SeVe(const Glifo& letter) {
  return std::ranges::any_of(letter, [](const std::u32string& row) {
    return std::ranges::any_of(row, [](char32_t c) { return c != U' ' && c != 0xA0 && c != kBlancoDuro; });
  });
}

bool Dibujada(const FuenteFiglet& font, char32_t c) {
  const auto at = font.letras.find(c);
  return at != font.letras.end() && SeVe(at->second);
}

std::u32string FilaDe(std::string_view bytes) {
  std::u32string row;
  for (const char c : bytes.substr(0, kMasColumnasDeLetra))
    row += c == '$' ? kBlancoDuro : UnicodeOfByte(static_cast<unsigned char>(c));
  return row;
}

}  // namespace

const Glifo& FuenteFiglet::De(char32_t c) const {
  static const Glifo none;
  auto at = letras.find(c);
  if (at == letras.end()) at = letras.find(0);
  return at == letras.end() ? none : at->second;
}

std::vector<std::int32_t> NumerosDeCabecera(std::string_view text) {
  std::vector<std::int32_t> numbers;
  for (;;) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return numbers;
    text.remove_prefix(first);
    std::int32_t n = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), n);
    if (error != std::errc()) return numbers;
    numbers.push_back(n);
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  }
}

Disposicion DisposicionDe(std::span<const std::int32_t> header) {
  Disposicion d;
  if (header.size() > 6) {
    d.reglas = header[6];
  } else if (header.size() > 3 && header[3] >= 0) {
    d.reglas = header[3] == 0 ? kJuntarHorizontal : (header[3] & kReglasHorizontales) | kFundirHorizontal;
  }
  d.haciaLaIzquierda = header.size() > 5 && header[5] == 1;
  return d;
}

FuenteFiglet FuenteLeida(const BasFigLet& font) {
  FuenteFiglet read;
  read.comentario = font.Comment;
  if (font.Cabecera.size() > kHeaderNumbers)
    read.disposicion =
        DisposicionDe(NumerosDeCabecera(std::string_view(font.Cabecera).substr(kHeaderNumbers)));
  read.altura = FilasDeLetrero(font);
  for (std::size_t code = 0; code < font.Glyphs.size(); ++code) {
    const auto& rows = font.Glyphs[code];
    if (rows.empty()) continue;
    Glifo letter(read.altura);
    for (std::size_t i = 0; i < std::min(rows.size(), letter.size()); ++i) letter[i] = FilaDe(rows[i]);
    read.letras.emplace(UnicodeOfByte(static_cast<unsigned char>(code)), std::move(letter));
  }
  return read;
}

bool CompletaParaEspanol(const FuenteFiglet& font) {
  const auto drawn = [&](char32_t c) { return Dibujada(font, c); };
  return std::ranges::all_of(kEspanol, drawn) &&
         std::ranges::all_of(kAlfabeto, [&](char32_t c) { return drawn(c) && drawn(c - U'a' + U'A'); });
}

std::size_t AnchoDe(const Glifo& letter) {
  std::size_t width = 0;
  for (const std::u32string& row : letter) width = std::max(width, row.size());
  return width;
}

std::size_t AnchoDeLetra(const FuenteFiglet& font) {
  std::size_t sum = 0;
  for (const char32_t c : kAlfabeto) sum += AnchoDe(font.De(c));
  return (sum + kAlfabeto.size() / 2) / kAlfabeto.size();
}

}  // namespace pixmosa

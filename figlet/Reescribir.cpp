#include "figlet/Reescribir.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <optional>

#include "figlet/LectorDeFuente.h"
#include "figlet/Parecidos.h"
#include "platform/CodePage.h"
#include "platform/Lines.h"

namespace pixmosa {
namespace {

constexpr std::array<std::uint32_t, 7> kAdditional = {196, 214, 220, 228, 246, 252, 223};
constexpr std::int32_t kBlocks = 224;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

constexpr char kNoAnadida[] = "No se ha añadido", kNoLeida[] = "No se ha podido leer";

using Glyphs = std::map<char32_t, Dibujada>;

// Without what stands around a font in files of other systems: a byte-order mark, the old end-of-file
// character, empty lines at the end.
std::string_view Bare(std::string_view font) {
  if (font.starts_with(kByteOrderMark)) font.remove_prefix(kByteOrderMark.size());
  const std::size_t last = font.find_last_not_of("\r\n\x1A");
  return font.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

bool EsTlf(std::string_view font) {
  return Bare(font).starts_with("tlf2");
}

std::size_t CountLines(std::string_view text) {
  std::size_t n = 0;
  for (; !text.empty(); ++n) TakeLine(text);
  return n;
}

// Whether a header line is the own form's, which may have the layout's numbers behind.
bool EsDeCabecera(std::string_view line, const std::string& own) {
  return line.starts_with(own) && (line.size() == own.size() || line[own.size()] == ' ') &&
         line.find_first_not_of(" -0123456789", own.size()) == std::string_view::npos;
}

// Whether a font is in the reader's own form, end marks included, to its last line.
bool IsOwn(std::string_view font, const CabeceraDeFuente& header) {
  std::int64_t line = 0;
  const std::int64_t first = std::int64_t{header.comments} + 1,
                     last = first + std::int64_t{kBlocks} * header.height;
  for (; !font.empty(); ++line) {
    const std::size_t end = font.find("\r\n");
    if (end == std::string_view::npos || line >= last) return false;
    const std::string_view text = font.substr(0, end);
    if (text.find_first_of("\r\n") != std::string_view::npos) return false;
    if (line == 0 && !EsDeCabecera(text, header.propia)) return false;
    const bool bottom = (line - first + 1) % header.height == 0;
    if (line >= first && !text.ends_with(bottom ? "@@" : "@")) return false;
    font.remove_prefix(end + 2);
  }
  return line == last;
}

// The code of a tag line ("196  LATIN CAPITAL LETTER A WITH DIAERESIS", "0x00C4", "0304"), which may be
// negative; nothing for any other line.
std::optional<std::int64_t> TagCode(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return std::nullopt;
  text.remove_prefix(first);
  const bool minus = text.starts_with('-');
  if (minus) text.remove_prefix(1);
  int base = 10;
  if (text.starts_with("0x") || text.starts_with("0X")) {
    base = 16;
    text.remove_prefix(2);
  } else if (text.size() > 1 && text[0] == '0') {
    base = 8;
  }
  std::int64_t code = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), code, base);
  if (error != std::errc() || (end != text.data() + text.size() && *end != ' ' && *end != '\t'))
    return std::nullopt;
  return minus ? -code : code;
}

void Put(Glyphs& glyphs, std::int64_t unicode, Dibujada glyph) {
  if (unicode >= 0 && unicode <= 0x10FFFF) glyphs[static_cast<char32_t>(unicode)] = std::move(glyph);
}

// The seven additional characters as far as the font has them. What follows and does not end as characters
// do, like those before it with `mark` or else with a doubled one, is left for the caller.
void ReadAdditional(LectorDeFuente& in, const CabeceraDeFuente& header, bool utf8, const std::string& mark,
                    Glyphs& glyphs) {
  for (const std::uint32_t code : kAdditional) {
    if (in.AlFinal()) return;
    LectorDeFuente ahead = in;
    try {
      Dibujada glyph = LeerDibujada(ahead, header, utf8);
      if (glyph.mark.empty() || (glyph.mark != mark && !glyph.doubled)) return;
      Put(glyphs, code, std::move(glyph));
    } catch (const FuenteRechazada&) {
      return;
    }
    in = ahead;
  }
}

// Returns the number of lines at the end that belong to no character.
std::size_t ReadGlyphs(LectorDeFuente& in, const CabeceraDeFuente& header, bool utf8, Glyphs& glyphs) {
  for (std::uint32_t code = 32; code < 127; ++code) Put(glyphs, code, LeerDibujada(in, header, utf8));
  ReadAdditional(in, header, utf8, glyphs.at('~').mark, glyphs);
  while (!in.AlFinal()) {
    const std::size_t left = CountLines(in.Resto());
    const std::string_view line = in.Linea("");
    if (line.find_first_not_of(" \t") == std::string_view::npos) continue;
    const auto code = TagCode(line);
    if (!code || in.AlFinal()) return left;
    Put(glyphs, *code, LeerDibujada(in, header, utf8));
  }
  return 0;
}

// A standard font as its file has it.
struct Leida {
  CabeceraDeFuente header;
  std::string comments;  // each line with CR LF behind
  Glyphs glyphs;
  std::size_t lineasDeMas = 0;
};

Leida Read(LectorDeFuente& in, CabeceraDeFuente header, bool tlf) {
  Leida font{std::move(header), {}, {}, 0};
  for (std::int32_t i = 0; i < font.header.comments; ++i) {
    const std::string_view line = in.Linea("acabar los comentarios");
    font.comments += (EsUtf8(line) ? BytesOfUtf8(line) : std::string(line)) + "\r\n";
  }
  // Two bytes of an old code page may look like one character of UTF-8: the artwork as a whole decides.
  font.lineasDeMas = ReadGlyphs(in, font.header, tlf || EsUtf8(in.Resto()), font.glyphs);
  return font;
}

// The code page's character for one of the artwork; a dollar of it would be shown as a blank.
char OwnChar(char32_t c, std::size_t& replaced) {
  if (c == kBlancoDuro || c == U'$') return c == U'$' ? 'S' : '$';
  const auto byte = ByteOfUnicode(c);
  replaced += byte ? 0 : 1;
  return byte ? static_cast<char>(*byte) : Parecido(c);
}

// The layout's numbers as they stand behind the comments' one; full width says nothing.
std::string LayoutNumbers(const Disposicion& layout) {
  if (layout.reglas == 0 && !layout.haciaLaIzquierda) return {};
  return (layout.haciaLaIzquierda ? " 1 " : " 0 ") + std::to_string(layout.reglas);
}

// The header, the comments and the 224 blocks.
FuenteReescrita OwnForm(const Leida& font) {
  const CabeceraDeFuente& header = font.header;
  FuenteReescrita own;
  own.lineasDeMas = font.lineasDeMas;
  std::string blocks;
  std::size_t longest = 0;
  const auto height = static_cast<std::size_t>(header.height);
  for (int code = 32; code < 32 + kBlocks; ++code) {
    const auto at = font.glyphs.find(UnicodeOfByte(static_cast<unsigned char>(code)));
    for (std::size_t row = 0; row < height; ++row) {
      std::string art;
      if (at != font.glyphs.end())
        for (const char32_t c : at->second.rows[row]) art += OwnChar(c, own.reemplazados);
      longest = std::max(longest, art.size() + 2);
      blocks += art + (row + 1 == height ? "@@\r\n" : "@\r\n");
    }
  }
  own.bytes = "flf2a$ " + std::to_string(header.height) + " " + std::to_string(header.baseline) + " " +
              std::to_string(longest) + " -1 " + std::to_string(header.comments) +
              LayoutNumbers(header.disposicion) + "\r\n" + font.comments + blocks;
  return own;
}

}  // namespace

bool EmpiezaComoFuente(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  return bytes.starts_with("flf2") || bytes.starts_with("tlf2");
}

bool PareceFuente(const std::string& file) {
  const std::string name = LowerCase(file.substr(file.find_last_of("/\\") + 1));
  return (name.ends_with(".flf") || name.ends_with(".tlf")) && !name.starts_with("._");
}

bool EsZip(std::string_view bytes) {
  return bytes.starts_with("PK\x03\x04") || bytes.starts_with("PK\x05\x06");
}

FuenteReescrita ReescribirFuente(std::string_view font, const std::string& name) {
  LectorDeFuente in(Bare(font), name, kNoAnadida);
  CabeceraDeFuente header = LeerCabecera(in);
  if (IsOwn(font, header)) return {std::string(font), 0, 0};
  return OwnForm(Read(in, std::move(header), EsTlf(font)));
}

FuenteFiglet LeerFuente(std::string_view font, const std::string& name) {
  LectorDeFuente in(Bare(font), name, kNoLeida);
  CabeceraDeFuente header = LeerCabecera(in);
  if (IsOwn(font, header)) {
    BasFigLet own;
    LoadFontBytes(own, font, [](const std::string&) {});
    return FuenteLeida(own);
  }
  Leida read = Read(in, std::move(header), EsTlf(font));
  FuenteFiglet whole;
  whole.altura = static_cast<std::size_t>(read.header.height);
  whole.disposicion = read.header.disposicion;
  if (!read.comments.empty()) whole.comentario = "\r\n" + read.comments.substr(0, read.comments.size() - 2);
  for (auto& [code, glyph] : read.glyphs) {
    for (std::u32string& row : glyph.rows)
      if (row.size() > kMasColumnasDeLetra) row.resize(kMasColumnasDeLetra);
    whole.letras.emplace(code, std::move(glyph.rows));
  }
  return whole;
}

}  // namespace pixmosa

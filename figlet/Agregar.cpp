#include "figlet/Agregar.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <optional>

#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/Lines.h"

namespace pixmosa {
namespace {

namespace fs = std::filesystem;

constexpr std::int32_t kMostRows = 256;
constexpr std::array<std::uint32_t, 7> kAdditional = {196, 214, 220, 228, 246, 252, 223};
constexpr char kCategoria[] =
    "A\xF1"
    "adidas",
               kSubcategoria[] = "Propias";

using Glyph = std::vector<std::string>;

struct Header {
  char hardBlank = '$';
  std::int32_t height = 0, baseline = 0, comments = 0;
};

// Reads a font line by line and names the line in every failure.
class Lector {
 public:
  Lector(std::string_view font, std::string name) : rest_(font), name_(std::move(name)) {}

  bool AtEnd() const { return rest_.empty(); }

  std::string_view Line(const char* what) {
    if (AtEnd()) Fail(std::string("el archivo termina antes de ") + what, line_ + 1);
    ++line_;
    return TakeLine(rest_);
  }

  [[noreturn]] void Fail(const std::string& fault, std::size_t line = 0) const {
    throw FuenteRechazada("No se ha añadido \"" + name_ + "\": línea " + std::to_string(line ? line : line_) +
                          ": " + fault + ".");
  }

 private:
  std::string_view rest_;
  std::string name_;
  std::size_t line_ = 0;
};

// The numbers of a header behind its hard blank.
std::vector<std::int32_t> Numbers(std::string_view text) {
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

Header ReadHeader(Lector& in) {
  const std::string_view line = in.Line("la cabecera");
  if (!line.starts_with("flf2") || line.size() < 6) in.Fail("no empieza como una fuente FIGlet (flf2)");
  const std::vector<std::int32_t> n = Numbers(line.substr(6));
  if (n.size() < 5) in.Fail("a la cabecera le faltan números");
  if (n[0] < 1 || n[0] > kMostRows) in.Fail("la altura " + std::to_string(n[0]) + " no está entre 1 y 256");
  if (n[4] < 0) in.Fail("el número de líneas de comentario es negativo");
  return {line[5], n[0], n[1], n[4]};
}

// A row of artwork without its end marks, in our own form.
std::string Row(std::string_view line, char hardBlank) {
  while (!line.empty() && (line.back() == ' ' || line.back() == '\t')) line.remove_suffix(1);
  if (!line.empty()) {
    const char mark = line.back();
    while (!line.empty() && line.back() == mark) line.remove_suffix(1);
  }
  std::string row;
  for (std::string_view rest = line; !rest.empty();) {
    const auto first = static_cast<unsigned char>(rest[0]);
    if (first < 128) {
      const char c = rest[0];
      row += c == hardBlank ? '$' : c == '$' ? 'S' : first < 32 ? ' ' : c;
      rest.remove_prefix(1);
      continue;
    }
    // Artwork in UTF-8 becomes the code page's character, or "#" where it has none; other bytes stay as they
    // are.
    std::string_view after = rest;
    const char32_t wide = NextUtf8(after);
    if (wide == 0xFFFD) {
      row += rest[0];
      rest.remove_prefix(1);
    } else {
      row += static_cast<char>(ByteOfUnicode(wide).value_or('#'));
      rest = after;
    }
  }
  return row;
}

Glyph ReadGlyph(Lector& in, const Header& header) {
  Glyph glyph;
  for (std::int32_t i = 0; i < header.height; ++i) {
    const std::string_view line = in.Line("acabar un carácter");
    if (line.empty()) in.Fail("falta la marca de fin de fila");
    glyph.push_back(Row(line, header.hardBlank));
  }
  return glyph;
}

// The code of a tag line ("196  LATIN CAPITAL LETTER A WITH DIAERESIS", "0x00C4", "0304"); negative ones are
// allowed.
std::int64_t TagCode(Lector& in, std::string_view line) {
  const std::size_t first = line.find_first_not_of(' ');
  std::string_view text = first == std::string_view::npos ? std::string_view() : line.substr(first);
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
    in.Fail("se esperaba el código de un carácter");
  return minus ? -code : code;
}

void Put(std::map<unsigned char, Glyph>& glyphs, std::int64_t unicode, Glyph glyph) {
  if (unicode < 32 || unicode > 0x10FFFF) return;
  const auto byte = ByteOfUnicode(static_cast<char32_t>(unicode));
  if (byte) glyphs[*byte] = std::move(glyph);
}

std::map<unsigned char, Glyph> ReadGlyphs(Lector& in, const Header& header) {
  std::map<unsigned char, Glyph> glyphs;
  for (std::uint32_t code = 32; code < 127; ++code) Put(glyphs, code, ReadGlyph(in, header));
  for (const std::uint32_t code : kAdditional) {
    if (in.AtEnd()) return glyphs;
    Put(glyphs, code, ReadGlyph(in, header));
  }
  while (!in.AtEnd()) {
    const std::string_view line = in.Line("");
    if (line.find_first_not_of(" \t") == std::string_view::npos) continue;
    const std::int64_t code = TagCode(in, line);
    Put(glyphs, code, ReadGlyph(in, header));
  }
  return glyphs;
}

}  // namespace

std::string ReescribirFuente(std::string_view font, const std::string& name) {
  Lector in(font, name);
  const Header header = ReadHeader(in);
  std::string comments;
  for (std::int32_t i = 0; i < header.comments; ++i) {
    const std::string line(in.Line("acabar los comentarios"));
    comments += BytesOfUtf8(Utf8OfBytes(line)) + "\r\n";
  }
  const auto glyphs = ReadGlyphs(in, header);

  std::string blocks;
  std::size_t longest = 0;
  for (int code = 32; code < 256; ++code) {
    const auto at = glyphs.find(static_cast<unsigned char>(code));
    for (std::size_t row = 0; row < static_cast<std::size_t>(header.height); ++row) {
      const std::string art = at == glyphs.end() ? std::string() : at->second[row];
      longest = std::max(longest, art.size() + 2);
      blocks += art + (row + 1 == static_cast<std::size_t>(header.height) ? "@@\r\n" : "@\r\n");
    }
  }
  return "flf2a$ " + std::to_string(header.height) + " " + std::to_string(header.baseline) + " " +
         std::to_string(longest) + " -1 " + std::to_string(header.comments) + "\r\n" + comments + blocks;
}

namespace {

// The catalogue with the font under the category of added fonts, which is made where it is missing.
std::string WithFont(std::string catalogue, const std::string& stem) {
  const std::string category = "[" + std::string(kCategoria) + "]\r\n";
  const std::string sub = "[" + std::string(kCategoria) + "|" + kSubcategoria + "]\r\n";
  const std::string line = BytesOfUtf8(stem) + "\r\n";
  if (!catalogue.empty() && !catalogue.ends_with('\n')) catalogue += "\r\n";
  const std::size_t at = catalogue.find(sub);
  if (at == std::string::npos) return catalogue + category + sub + line;
  const std::size_t begin = at + sub.size();
  const std::size_t end = std::min(catalogue.find("\r\n[", begin), catalogue.size());
  const std::string listed = "\r\n" + catalogue.substr(begin, end - begin) + "\r\n";
  if (listed.find("\r\n" + line) == std::string::npos) catalogue.insert(begin, line);
  return catalogue;
}

void SaveInto(const fs::path& folder, const std::string& name, std::string_view rewritten) {
  std::error_code ec;
  fs::create_directories(folder, ec);
  EscribirArchivo(folder / name, rewritten);
  const fs::path catalogue = folder / "categoriestree.txt";
  const std::string before = fs::exists(catalogue, ec) ? LeerArchivo(catalogue) : std::string();
  EscribirArchivo(catalogue, WithFont(before, fs::path(name).stem().string()));
}

}  // namespace

void GuardarFuente(const std::vector<fs::path>& folders, const std::string& name,
                   std::string_view rewritten) {
  for (std::size_t i = 0; i < folders.size(); ++i) {
    try {
      SaveInto(folders[i], name, rewritten);
      return;
    } catch (const FileError&) {
      if (i + 1 == folders.size()) throw;
    }
  }
}

}  // namespace pixmosa

#include "figlet/LectorDeFuente.h"

#include "figlet/Reescribir.h"
#include "platform/CodePage.h"
#include "platform/Lines.h"

namespace pixmosa {
namespace {

constexpr std::int32_t kMostRows = 256;
constexpr char32_t kBad = 0xFFFD;

// Takes a character off the front: its bytes, and its number, or kBad where it is a byte of the code page.
std::pair<std::string_view, char32_t> TakeChar(std::string_view& rest, bool utf8) {
  const std::string_view before = rest;
  const char32_t wide = utf8 ? NextUtf8(rest) : kBad;
  const std::size_t taken = wide == kBad ? 1 : before.size() - rest.size();
  rest = before.substr(taken);
  return {before.substr(0, taken), wide};
}

// The last character of a text that has one.
std::string_view LastChar(std::string_view text, bool utf8) {
  for (std::size_t n = 2; utf8 && n <= 4 && n <= text.size(); ++n) {
    std::string_view tail = text.substr(text.size() - n);
    if (NextUtf8(tail) != kBad && tail.empty()) return text.substr(text.size() - n);
  }
  return text.substr(text.size() - 1);
}

// A line of a character without its end marks, which the character keeps.
std::string_view WithoutMarks(Dibujada& glyph, std::string_view line, bool utf8) {
  while (!line.empty() && (line.back() == ' ' || line.back() == '\t')) line.remove_suffix(1);
  if (line.empty()) return line;
  const std::string mark(LastChar(line, utf8));
  if (glyph.rows.empty()) glyph.mark = mark;
  if (glyph.mark != mark) glyph.mark.clear();
  const std::size_t size = line.size();
  while (line.ends_with(mark)) line.remove_suffix(mark.size());
  glyph.doubled = size - line.size() > mark.size();
  return line;
}

// A character of the artwork, not a hard blank; controls are blanks.
char32_t CharOf(std::string_view bytes, char32_t wide) {
  const auto first = static_cast<unsigned char>(bytes[0]);
  if (first < 32 || first == 127) return U' ';
  return wide == kBad ? UnicodeOfByte(first) : wide;
}

void AddRow(Dibujada& glyph, std::string_view line, const std::string& hardBlank, bool utf8) {
  std::u32string row;
  for (std::string_view rest = WithoutMarks(glyph, line, utf8); !rest.empty();) {
    const auto [bytes, wide] = TakeChar(rest, utf8);
    row += bytes == hardBlank ? kBlancoDuro : CharOf(bytes, wide);
  }
  glyph.rows.push_back(std::move(row));
}

}  // namespace

std::string_view LectorDeFuente::Linea(const char* what) {
  if (AlFinal()) Rechazar(std::string("el archivo termina antes de ") + what, line_ + 1);
  ++line_;
  return TakeLine(rest_);
}

void LectorDeFuente::Rechazar(const std::string& fault, std::size_t line) const {
  throw FuenteRechazada(std::string(complaint_) + " \"" + *name_ + "\": línea " +
                        std::to_string(line ? line : line_) + ": " + fault + ".");
}

CabeceraDeFuente LeerCabecera(LectorDeFuente& in) {
  const std::string_view line = in.Linea("la cabecera");
  if (!EmpiezaComoFuente(line) || line.size() < 6) in.Rechazar("no empieza como una fuente FIGlet (flf2)");
  std::string_view rest = line.substr(5);
  const std::string_view hardBlank = TakeChar(rest, true).first;
  const std::vector<std::int32_t> n = NumerosDeCabecera(rest);
  if (n.size() < 5) in.Rechazar("a la cabecera le faltan números");
  if (n[0] < 1 || n[0] > kMostRows)
    in.Rechazar("la altura " + std::to_string(n[0]) + " no está entre 1 y 256");
  if (n[4] < 0) in.Rechazar("el número de líneas de comentario es negativo");
  std::string own = "flf2a$";
  for (std::size_t i = 0; i < 5; ++i) own += " " + std::to_string(n[i]);
  return {std::string(hardBlank), n[0], n[1], n[4], DisposicionDe(n), own};
}

Dibujada LeerDibujada(LectorDeFuente& in, const CabeceraDeFuente& header, bool utf8) {
  Dibujada glyph;
  for (std::int32_t i = 0; i < header.height; ++i) {
    if (in.AlFinal() && i > 0 && i + 1 == header.height) {
      glyph.rows.emplace_back();
      break;
    }
    const std::string_view line = in.Linea("acabar un carácter");
    if (line.empty()) in.Rechazar("falta la marca de fin de fila");
    AddRow(glyph, line, header.hardBlank, utf8);
  }
  return glyph;
}

bool EsUtf8(std::string_view text) {
  while (!text.empty())
    if (NextUtf8(text) == kBad) return false;
  return true;
}

}  // namespace pixmosa

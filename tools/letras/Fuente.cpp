#include "tools/letras/Fuente.h"

#include <algorithm>

#include "platform/CodePage.h"

namespace pixmosa::letras {
namespace {

bool IsBlank(const std::string& row) {
  return row.find_first_not_of(" $") == std::string::npos;
}

// With hard blanks behind the last ink of every row, and not before the middle: how far another letter may
// be pushed in.
Filas WithMargin(const Filas& rows, int margin) {
  const std::size_t wide = rows[0].size(), columns = static_cast<std::size_t>(margin);
  Filas out;
  for (const std::string& row : rows) {
    const std::size_t last = row.find_last_not_of(' '), ink = last == std::string::npos ? 0 : last + 1;
    const std::size_t at = std::max(ink, (wide + 1) / 2);
    std::string padded = row + std::string(columns, ' ');
    padded.replace(at, columns, columns, '$');
    out.push_back(padded);
  }
  return out;
}

// The rows from the first to the last that any letter uses.
void CutBlankRows(Letras& letters) {
  std::size_t first = letters['A'].size(), last = 0;
  for (const Filas& rows : letters)
    for (std::size_t y = 0; y < rows.size(); ++y)
      if (!IsBlank(rows[y])) first = std::min(first, y), last = std::max(last, y);
  for (Filas& rows : letters)
    if (!rows.empty())
      rows = Filas(rows.begin() + static_cast<std::ptrdiff_t>(first),
                   rows.begin() + static_cast<std::ptrdiff_t>(last) + 1);
}

std::string Comments(const Estilo& style) {
  return BytesOfUtf8(std::string(style.nombre) + ": " + std::string(style.descripcion) +
                     ".\r\n"
                     "Hecha para Pixmosa con su programa \"letras\", dibujada a mano.\r\n"
                     "224 letras en el orden de la página de códigos Windows-1252, de la 32 a la 255;\r\n"
                     "las que la página no define están vacías.\r\n");
}

}  // namespace

Letras Pintadas(const Hoja& sheet, const Estilo& style) {
  Letras letters;
  const std::size_t height = style.pintar(sheet['A'], 'A').size();
  for (int code = kPrimero; code <= kUltimo; ++code) {
    const Filas& shape = sheet[static_cast<std::size_t>(code)];
    Filas& rows = letters[static_cast<std::size_t>(code)];
    rows = shape.empty() ? Filas(height) : WithMargin(style.pintar(shape, code), style.margen);
    if (code == 0x20 || code == 0xA0)
      for (std::string& row : rows) std::replace(row.begin(), row.end(), ' ', '$');
  }
  CutBlankRows(letters);
  return letters;
}

std::string ArchivoFlf(const Letras& letters, const Estilo& style) {
  std::string blocks;
  std::size_t longest = 0, base = 0;
  const Filas& capital = letters['H'];
  for (std::size_t y = 0; y < capital.size(); ++y)
    if (!IsBlank(capital[y])) base = y + 1;
  for (int code = kPrimero; code <= kUltimo; ++code) {
    const Filas& rows = letters[static_cast<std::size_t>(code)];
    for (std::size_t y = 0; y < rows.size(); ++y)
      blocks += rows[y] + (y + 1 == rows.size() ? "@@\r\n" : "@\r\n");
    for (const std::string& row : rows) longest = std::max(longest, row.size() + 2);
  }
  const std::string comments = Comments(style);
  const auto lines = std::count(comments.begin(), comments.end(), '\n');
  return "flf2a$ " + std::to_string(capital.size()) + " " + std::to_string(base) + " " +
         std::to_string(longest) + " " + std::to_string(style.junta) + " " + std::to_string(lines) + "\r\n" +
         comments + blocks;
}

std::string Letrero(const Letras& letters, std::string_view text) {
  std::string banner;
  for (std::size_t y = 0; y < letters['A'].size(); ++y) {
    for (const char c : text) banner += letters[static_cast<unsigned char>(c)][y];
    banner += '\n';
  }
  std::replace(banner.begin(), banner.end(), '$', ' ');
  return banner;
}

std::string Catalogo() {
  std::string file = "# Las fuentes de letreros de Pixmosa por categorías\r\n";
  std::string_view category, sub;
  for (const Estilo& style : kEstilos) {
    if (style.categoria != category) file += "\r\n[" + std::string(style.categoria) + "]\r\n";
    if (style.categoria != category || style.subcategoria != sub)
      file += "[" + std::string(style.categoria) + "|" + std::string(style.subcategoria) + "]\r\n";
    category = style.categoria, sub = style.subcategoria;
    file += std::string(style.nombre) + "\r\n";
  }
  return BytesOfUtf8(file);
}

}  // namespace pixmosa::letras

#include "editor/TextoDelEditor.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

#include "editor/PartesDeMarco.h"
#include "platform/CodePage.h"

namespace pixmosa {
namespace {

// Takes the characters up to the next CR off the front, the CR with them. False where there was none: the
// text's last line.
bool TakeRow(std::string_view& text, std::string_view& row) {
  const std::size_t end = text.find('\r');
  row = text.substr(0, end);
  text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  return end != std::string_view::npos;
}

std::size_t Largo(std::string_view utf8) {
  return static_cast<std::size_t>(
      std::ranges::count_if(utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

}  // namespace

TextoAbierto TextoMedido(std::string_view text) {
  TextoAbierto opened;
  opened.texto = text;
  std::string_view row;
  std::size_t columns = 0, lines = 0, cells = 0;
  for (bool more = true; more;) {
    more = TakeRow(text, row);
    const bool lf = lines++ > 0 && row.starts_with('\n');
    const std::size_t length = Largo(row);
    opened.desplazado |= lf;
    cells = std::max(cells, length);
    columns = std::max(columns, length - (lf ? 1 : 0));
  }
  const auto number = [](std::size_t n) {
    return static_cast<int>(std::min<std::size_t>(n, std::numeric_limits<int>::max()));
  };
  opened.columnas = number(columns);
  opened.lineas = number(lines);
  opened.celdas = number(cells);
  opened.cabe = opened.celdas <= kLadoMayor && opened.lineas <= kLadoMayor;
  return opened;
}

void BorrarTodo(BasEditor& editor) {
  Clear(editor);
  editor.Abierto.reset();
}

void AbrirTexto(BasEditor& editor, std::string_view text) {
  auto opened = std::make_shared<const TextoAbierto>(TextoMedido(text));
  editor.Grid.Sustituir(
      Lienzo(std::max(opened->celdas, kColumnasNuevas), std::max(opened->lineas, kFilasNuevas)));
  PaintText(editor, text);
  editor.Abierto = std::move(opened);
}

void AlinearRenglones(BasEditor& editor) {
  if (!editor.Abierto || !editor.Abierto->desplazado || editor.Abierto->alineado) return;
  Lienzo& grid = editor.Grid;
  std::string_view text = editor.Abierto->texto, row;
  bool more = TakeRow(text, row);
  for (int r = 2; r <= grid.Filas(); ++r) {
    if (more) more = TakeRow(text, row);
    // Lines below the text begin where its last one does.
    if (!row.starts_with('\n')) continue;
    for (Cell c{1, r}; c.column <= grid.Columnas(); ++c.column) {
      const Cell next{c.column + 1, r};
      grid.Poner(c, c.column < grid.Columnas() ? grid.En(next) : Contenido{});
    }
  }
  auto opened = std::make_shared<TextoAbierto>(*editor.Abierto);
  opened->alineado = true;
  editor.Abierto = std::move(opened);
}

TextoDePagina EnPagina(std::string_view utf8) {
  TextoDePagina page;
  page.bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const char32_t c = NextUtf8(utf8);
    const auto byte = ByteOfUnicode(c);
    page.cambiados += byte ? 0 : 1;
    page.bytes += byte ? static_cast<char>(*byte) : EnAscii(c);
  }
  return page;
}

}  // namespace pixmosa

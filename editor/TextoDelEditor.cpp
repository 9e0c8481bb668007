#include "editor/TextoDelEditor.h"

#include <algorithm>
#include <limits>

namespace pixmosa {
namespace {

constexpr int kLastColumn = kColumns - 1, kLastPaintable = kPaintableRows - 1;

// What a cell holds for those who only see the surface: what Clear leaves in the last column is not seen.
char Held(const BasEditor& editor, Cell c) {
  return c.column == kLastColumn && editor.Resto[static_cast<std::size_t>(c.row)] ? ' ' : editor.Grid.At(c);
}

char Printable(char ch) {
  return static_cast<unsigned char>(ch) < 32 ? ' ' : ch;
}

// Takes the characters up to the next CR off the front, the CR with them. False where there was none: the
// text's last line.
bool TakeRow(std::string_view& text, std::string_view& row) {
  const std::size_t end = text.find('\r');
  row = text.substr(0, end);
  text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  return end != std::string_view::npos;
}

// A line on its way out: its characters, with the LF that opening painted in the first column if it has one.
struct Renglon {
  std::string text;
  bool lf;
  char lead = ' ';  // what was drawn over that LF
};

// Puts the changed cells of a row into its line.
void Edit(const BasEditor& editor, const Characters& before, int row, Renglon& line) {
  for (int column = 1; column < kColumns; ++column) {
    const Cell c{column, row};
    const char held = Held(editor, c);
    if (held == before.At(c)) continue;
    const auto at = static_cast<std::size_t>(column - 1);
    if (at == 0 && line.lf) {
      line.lead = Printable(held);
    } else if (at < line.text.size()) {
      line.text[at] = Printable(held);
    } else if (Printable(held) != ' ') {
      line.text.resize(at, ' ');
      line.text += Printable(held);
    }
  }
}

// The last row on which something is to be seen; 0 on an empty surface.
int LastUsedRow(const BasEditor& editor) {
  for (int row = kLastPaintable; row > 0; --row)
    for (int column = 1; column < kColumns; ++column)
      if (Printable(Held(editor, {column, row})) != ' ') return row;
  return 0;
}

// Appends a line; `moved` puts a column in front of every one that is not empty.
void Append(std::string& to, const Renglon& line, bool moved) {
  std::string_view text = line.text;
  if (line.lf) {
    to += '\n';
    text.remove_prefix(1);
  }
  if (moved && (!text.empty() || line.lead != ' ')) to += line.lead;
  to += text;
}

struct Texto {
  std::vector<Renglon> lines;  // those of the surface
  std::string_view rest;       // behind the last of them
  bool more;                   // the text goes on with `rest`
};

// The lines of a text as far as the surface reaches.
Texto Split(std::string_view text) {
  Texto t{{}, text, true};
  while (t.more && t.lines.size() < static_cast<std::size_t>(kLastPaintable)) {
    std::string_view row;
    t.more = TakeRow(t.rest, row);
    t.lines.push_back({std::string(row), !t.lines.empty() && row.starts_with('\n')});
  }
  return t;
}

std::string Join(const Texto& t, bool moved) {
  std::string text;
  for (std::size_t i = 0; i < t.lines.size(); ++i) {
    if (i > 0) text += '\r';
    Append(text, t.lines[i], moved);
  }
  if (!t.more) return text;
  if (!moved) return text.append("\r").append(t.rest);
  std::string_view rest = t.rest, row;
  for (bool more = true; more;) {
    more = TakeRow(rest, row);
    text += '\r';
    Append(text, {std::string(row), row.starts_with('\n')}, true);
  }
  return text;
}

// Width, number of lines and whether all have their cells.
void Measure(TextoAbierto& opened) {
  std::string_view text = opened.texto, row;
  std::size_t columns = 0, lines = 0;
  for (bool more = true; more;) {
    more = TakeRow(text, row);
    const bool lf = lines++ > 0 && row.starts_with('\n');
    columns = std::max(columns, row.size() - lf);
    const bool surface = lines <= static_cast<std::size_t>(kLastPaintable);
    if (surface ? row.size() > static_cast<std::size_t>(kLastColumn) : row.size() > lf) opened.cabe = false;
  }
  constexpr std::size_t kMost = std::numeric_limits<int>::max();
  opened.columnas = static_cast<int>(std::min(columns, kMost));
  opened.lineas = static_cast<int>(std::min(lines, kMost));
}

}  // namespace

void BorrarTodo(BasEditor& editor) {
  Clear(editor);
  editor.Abierto.reset();
}

void AbrirTexto(BasEditor& editor, std::string_view text) {
  Clear(editor);
  PaintText(editor, text);
  auto opened = std::make_shared<TextoAbierto>();
  opened->texto = text;
  for (int row = 1; row < kRows; ++row)
    for (int column = 1; column < kColumns; ++column)
      opened->celdas.At({column, row}) = Held(editor, {column, row});
  Measure(*opened);
  editor.Abierto = std::move(opened);
}

std::string DrawingText(const BasEditor& editor) {
  static const TextoAbierto nothing;
  const TextoAbierto& opened = editor.Abierto ? *editor.Abierto : nothing;
  Texto t = Split(opened.texto);
  // Lines below the text begin where its last one does.
  const bool lf = t.lines.back().lf;
  const int own = static_cast<int>(t.lines.size()), last = std::max(own, LastUsedRow(editor));
  for (int row = own + 1; row <= last; ++row) t.lines.push_back({lf ? "\n" : "", lf});
  bool moved = false;
  for (int row = 1; row <= last; ++row) {
    Renglon& line = t.lines[static_cast<std::size_t>(row - 1)];
    Edit(editor, opened.celdas, row, line);
    moved |= line.lead != ' ';
    if (row > own && !lf) line = {"\n" + line.text, true};
  }
  return Join(t, moved);
}

}  // namespace pixmosa

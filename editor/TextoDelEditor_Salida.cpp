// The drawing on its way out: the opened text line by line, with what was drawn since.
#include <algorithm>
#include <vector>

#include "editor/TextoDelEditor.h"
#include "platform/CodePage.h"

namespace pixmosa {
namespace {

char32_t Printable(char32_t ch) {
  return ch < 32 ? U' ' : ch;
}

// What a cell holds for those who only see the surface: what Clear leaves in the last column is not seen.
char32_t Held(const Lienzo& grid, Cell c) {
  const Contenido content = grid.En(c);
  return content.resto ? U' ' : content.caracter;
}

struct Letra {
  char32_t caracter;
  Colour tinta = kNoColour;
};

// A line on its way out, with the LF that opening painted in the first column if it has one.
struct Renglon {
  std::vector<Letra> letras;
  bool lf = false;
  Letra encima{U' '};   // what was drawn over that LF
  bool intacto = true;  // every character as it was opened
};

// A sink takes characters with their inks, or bytes of UTF-8 without any.
struct SalidaDeTexto {
  static constexpr bool kTinta = false;
  std::string texto;
  void Letras(std::string_view utf8) { texto += utf8; }
  void Poner(const Letra& l) { AppendUtf8(texto, l.caracter); }
};

struct SalidaDeCeldas {
  static constexpr bool kTinta = true;
  Dibujo dibujo;
  bool cr = false;
  void Letras(std::string_view utf8) {
    while (!utf8.empty()) Poner({NextUtf8(utf8)});
  }
  // CR LF, LF and CR end a row.
  void Poner(const Letra& l) {
    if (dibujo.filas.empty()) dibujo.filas.emplace_back();
    const bool both = cr && l.caracter == U'\n';
    cr = l.caracter == U'\r';
    if (both) return;
    if (l.caracter == U'\r' || l.caracter == U'\n') {
      dibujo.filas.emplace_back();
    } else {
      dibujo.filas.back().push_back({l.caracter, l.tinta});
    }
  }
};

class Emisor {
 public:
  explicit Emisor(const BasEditor& editor)
      : grid_(editor.Grid),
        text_(editor.Abierto ? std::string_view(editor.Abierto->texto) : std::string_view()),
        aligned_(editor.Abierto && editor.Abierto->alineado) {
    for (std::string_view rest = text_; static_cast<int>(lines_.size()) < grid_.Filas();) {
      const std::size_t end = rest.find('\r');
      lines_.push_back(rest.substr(0, end));
      more_ = end != std::string_view::npos;
      rest_ = more_ ? rest.substr(end + 1) : std::string_view();
      if (!more_) break;
      rest = rest_;
    }
    lf_ = lines_.size() > 1 && lines_.back().starts_with('\n');
    last_ = std::max(static_cast<int>(lines_.size()), LastUsedRow());
    for (int row = 2; row <= last_ && !moved_; ++row) moved_ = Linea(row, true).encima.caracter != U' ';
  }

  template <typename Sink>
  void Emitir(Sink& to) const {
    const int own = static_cast<int>(lines_.size());
    for (int row = 1; row <= last_; ++row) {
      if (row > 1) to.Letras("\r");
      const Renglon line = Linea(row, false);
      if (row > own && !line.lf) to.Letras("\n");
      if (line.intacto && row <= own && !moved_ && !(Sink::kTinta && grid_.HayTinta())) {
        to.Letras(lines_[static_cast<std::size_t>(row - 1)]);
        continue;
      }
      if (line.lf) to.Letras("\n");
      if (moved_ && (!line.letras.empty() || line.encima.caracter != U' ')) to.Poner(line.encima);
      for (const Letra& l : line.letras) to.Poner(l);
    }
    if (!more_) return;
    std::string_view rest = rest_;
    for (bool more = true; more;) {
      const std::size_t end = rest.find('\r');
      std::string_view row = rest.substr(0, end);
      more = end != std::string_view::npos;
      if (more) rest.remove_prefix(end + 1);
      to.Letras("\r");
      if (row.starts_with('\n')) {
        to.Letras("\n");
        row.remove_prefix(1);
      }
      if (moved_ && !row.empty()) to.Letras(" ");
      to.Letras(row);
    }
  }

 private:
  // The last row on which something is to be seen; 0 on an empty surface.
  int LastUsedRow() const {
    for (int row = grid_.Filas(); row > static_cast<int>(lines_.size()); --row)
      for (int column = 1; column <= grid_.Columnas(); ++column)
        if (Printable(Held(grid_, {column, row})) != U' ') return row;
    return 0;
  }

  // A line with its changed cells; `front` looks at the first cell alone.
  Renglon Linea(int row, bool front) const {
    const auto n = static_cast<std::size_t>(row - 1);
    std::string_view text = n < lines_.size() ? lines_[n] : lf_ ? "\n" : "";
    Renglon line;
    line.lf = row > 1 && text.starts_with('\n');
    if (line.lf) text.remove_prefix(1);
    const bool shifted = line.lf && !aligned_;
    int column = 1;
    if (shifted) {
      const char32_t held = Held(grid_, {1, row});
      if (held != U'\n' && Printable(held) != U' ') {
        line.encima = {Printable(held), grid_.Tinta({1, row})};
        line.intacto = false;
      }
      ++column;
    }
    if (front) return line;
    const bool own = n < lines_.size();
    for (; !text.empty(); ++column) {
      const char32_t before = NextUtf8(text);
      Letra letter{before};
      if (column <= grid_.Columnas()) {
        const char32_t held = Held(grid_, {column, row});
        letter.tinta = grid_.Tinta({column, row});
        if (held != before) {
          letter.caracter = Printable(held);
          line.intacto = false;
        }
      }
      line.letras.push_back(letter);
    }
    int end = grid_.Columnas();
    while (end >= column && Printable(Held(grid_, {end, row})) == U' ') --end;
    line.intacto = own && line.intacto && end < column;
    for (; column <= end; ++column)
      line.letras.push_back({Printable(Held(grid_, {column, row})), grid_.Tinta({column, row})});
    return line;
  }

  const Lienzo& grid_;
  std::string_view text_, rest_;
  std::vector<std::string_view> lines_;  // those of the surface
  bool aligned_, more_ = false, lf_ = false, moved_ = false;
  int last_ = 0;
};

}  // namespace

std::string DrawingText(const BasEditor& editor) {
  SalidaDeTexto out;
  Emisor(editor).Emitir(out);
  return out.texto;
}

Dibujo DrawingCells(const BasEditor& editor) {
  SalidaDeCeldas out;
  Emisor(editor).Emitir(out);
  return out.dibujo;
}

}  // namespace pixmosa

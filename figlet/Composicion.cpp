#include "figlet/Composicion.h"

#include <algorithm>
#include <utility>

#include "figlet/Apilar.h"
#include "figlet/Fundir.h"

namespace pixmosa {
namespace {

constexpr std::size_t kMasCeldas = 40'000'000, kFilaVacia = 8;  // what a row takes without characters

using Filas = std::vector<std::u32string>;

// How letters stand beside each other.
enum class Ajuste { Completo, Juntar, Fundir };

struct Modo {
  Ajuste ajuste = Ajuste::Completo;
  Apilado apilado = Apilado::Completo;
  std::int32_t reglas = 0;
  bool haciaLaIzquierda = false;
};

Modo ModoDe(const Disposicion& layout, Composicion asked) {
  const std::int32_t r = layout.reglas;
  Modo mode{Ajuste::Completo, Apilado::Completo, r, layout.haciaLaIzquierda};
  if (asked == Composicion::Juntar) mode.ajuste = Ajuste::Juntar;
  if (asked == Composicion::Fundir) mode.ajuste = Ajuste::Fundir;
  if (asked == Composicion::Fuente)
    mode.ajuste = r & kFundirHorizontal   ? Ajuste::Fundir
                  : r & kJuntarHorizontal ? Ajuste::Juntar
                                          : Ajuste::Completo;
  if (asked == Composicion::Fuente || asked == Composicion::Fundir)
    mode.apilado = r & kFundirVertical   ? Apilado::Fundir
                   : r & kJuntarVertical ? Apilado::Juntar
                                         : Apilado::Completo;
  if (asked == Composicion::Fundir && (r & kReglasVerticales)) mode.apilado = Apilado::Fundir;
  return mode;
}

// Letters beside each other, the next one always behind: of a font that runs to the left all is mirrored. All
// rows are of one length.
class Renglon {
 public:
  Renglon(std::size_t height, const Modo& mode) : mode_(&mode), rows_(height) {}

  std::size_t Ancho() const { return rows_.empty() ? 0 : rows_[0].size(); }

  void Poner(const Glifo& letter) {
    if (letter.empty()) return;
    const std::size_t width = AnchoDe(letter);
    Filas glyph = letter;
    for (std::u32string& row : glyph) {
      row.resize(width, U' ');
      if (mode_->haciaLaIzquierda) std::ranges::reverse(row);
    }
    const std::size_t shared = Compartidas(glyph, width), common = std::min(shared, Ancho());
    for (std::size_t row = 0; row < rows_.size(); ++row)
      Unir(rows_[row], glyph[row], common, shared - common);
    anterior_ = width;
  }

  // The rows as they are read.
  Filas Llevarse() {
    if (mode_->haciaLaIzquierda)
      for (std::u32string& row : rows_) std::ranges::reverse(row);
    return std::move(rows_);
  }

 private:
  char32_t Fundidos(char32_t before, char32_t next) const {
    const bool leftwards = mode_->haciaLaIzquierda;
    return leftwards ? FundirHorizontal(next, before, mode_->reglas, true)
                     : FundirHorizontal(before, next, mode_->reglas, false);
  }

  // Columns that the letter shares with the line, or stands before its beginning: what the row with the least
  // room allows.
  std::size_t Compartidas(const Filas& glyph, std::size_t width) const {
    if (mode_->ajuste == Ajuste::Completo) return 0;
    // A letter of one column would be lost in another.
    const bool smush = mode_->ajuste == Ajuste::Fundir && width > 1 && anterior_ > 1;
    std::size_t shared = width;
    for (std::size_t row = 0; row < rows_.size() && shared > 0; ++row) {
      const std::u32string &line = rows_[row], &add = glyph[row];
      const std::size_t most = std::min(width, line.size());
      std::size_t a = 0, b = 0;  // blanks at the line's end and at the letter's beginning
      while (a < most && line[line.size() - 1 - a] == U' ') ++a;
      while (b < width && add[b] == U' ') ++b;
      const bool touch = smush && a < line.size() && b < width;
      const bool fit = touch && Fundidos(line[line.size() - 1 - a], add[b]) != 0;
      shared = std::min(shared, a + b + (fit ? 1 : 0));
    }
    return shared;
  }

  // Puts a row of a letter behind the line's, without its first `beyond` columns; the next `common` ones are
  // the line's last.
  void Unir(std::u32string& line, const std::u32string& add, std::size_t common, std::size_t beyond) const {
    for (std::size_t i = 0; i < common; ++i) {
      char32_t& c = line[line.size() - common + i];
      const char32_t next = add[beyond + i];
      if (c == U' ' || next == U' ') {
        c = c == U' ' ? next : c;
      } else {
        c = Fundidos(c, next);
      }
    }
    line.append(add, beyond + common);
  }

  const Modo* mode_;
  Filas rows_;
  std::size_t anterior_ = 0;  // columns of the last letter
};

// A line of the text as one or several of the banner.
class Renglones {
 public:
  Renglones(const FuenteFiglet& font, const Modo& mode, std::size_t width)
      : font_(font), mode_(mode), width_(width), line_(font.altura, mode) {}

  std::vector<Filas> De(std::u32string_view text) {
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t word = std::min(text.find_first_not_of(U' ', at), text.size());
      const std::size_t end = width_ > 0 ? std::min(text.find(U' ', word), text.size()) : text.size();
      PonerPalabra(text.substr(at, word - at), text.substr(word, end - word));
      at = end;
    }
    Cerrar();
    return std::exchange(done_, {});
  }

 private:
  static void Comprobar(std::size_t cells) {
    if (cells > kMasCeldas)
      throw LetreroExcesivo("El letrero es demasiado grande: pasa de 40 millones de caracteres.");
  }

  bool Cabe(const Renglon& line) const { return width_ == 0 || line.Ancho() <= width_; }

  void Poner(Renglon& line, std::u32string_view text) {
    for (const char32_t c : text) {
      line.Poner(font_.De(c));
      Comprobar(line.Ancho() * font_.altura);
      if (!Cabe(line)) return;
    }
  }

  // A word with the blanks before it; blanks where the line is broken are lost.
  void PonerPalabra(std::u32string_view blanks, std::u32string_view word) {
    if (width_ == 0) {
      Poner(line_, blanks);
      Poner(line_, word);
      return;
    }
    Renglon longer = line_;
    Poner(longer, blanks);
    Poner(longer, word);
    if (Cabe(longer)) {
      line_ = std::move(longer);
      begun_ = true;
      return;
    }
    if (begun_ && word.empty()) return;
    if (begun_) Cerrar();
    for (const char32_t c : word) {
      Renglon more = line_;
      more.Poner(font_.De(c));
      if (!Cabe(more) && line_.Ancho() > 0) {
        Cerrar();
        line_.Poner(font_.De(c));
      } else {
        line_ = std::move(more);
      }
    }
    begun_ = true;
  }

  void Cerrar() {
    celdas_ += (line_.Ancho() + kFilaVacia) * font_.altura;
    Comprobar(celdas_);
    done_.push_back(line_.Llevarse());
    line_ = Renglon(font_.altura, mode_);
    begun_ = false;
  }

  const FuenteFiglet& font_;
  const Modo& mode_;
  std::size_t width_;
  Renglon line_;
  bool begun_ = false;
  std::size_t celdas_ = 0;  // of what is done
  std::vector<Filas> done_;
};

std::size_t AnchoDe(const std::vector<Filas>& lines) {
  std::size_t width = 0;
  for (const Filas& line : lines)
    if (!line.empty()) width = std::max(width, line[0].size());
  return width;
}

// Blanks before a line.
std::size_t Margen(std::size_t line, std::size_t width, Lado side) {
  if (side == Lado::Izquierda || line >= width) return 0;
  return side == Lado::Centro ? (width - line) / 2 : width - line;
}

}  // namespace

std::vector<std::u32string> Componer(const FuenteFiglet& font, std::u32string_view text,
                                     const OpcionesDeComposicion& options) {
  const Modo mode = ModoDe(font.disposicion, options.composicion);
  const auto wrap = static_cast<std::size_t>(std::max(options.ancho, 0));
  std::vector<Filas> lines;
  Renglones layout(font, mode, wrap);
  while (!text.empty()) {
    const std::size_t end = text.find(U'\n');
    std::u32string_view line = text.substr(0, end);
    if (line.ends_with(U'\r')) line.remove_suffix(1);
    for (Filas& rows : layout.De(line)) lines.push_back(std::move(rows));
    if (end == std::u32string_view::npos) break;
    text.remove_prefix(end + 1);
    if (text.empty()) lines.emplace_back(font.altura);
  }
  const std::size_t width = wrap > 0 ? wrap : AnchoDe(lines);
  const Lado side =
      options.alinear.value_or(mode.haciaLaIzquierda && wrap > 0 ? Lado::Derecha : Lado::Izquierda);
  Filas banner;
  for (Filas& line : lines) {
    for (std::u32string& row : line) {
      std::ranges::replace(row, kBlancoDuro, U' ');
      row.insert(0, Margen(row.size(), width, side), U' ');
    }
    Apilar(banner, std::move(line), mode.apilado, mode.reglas);
  }
  return banner;
}

}  // namespace pixmosa

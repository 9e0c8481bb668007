#include "exportar/Escritores.h"
#include "exportar/Lineal.h"
#include "exportar/Texto.h"
#include "platform/CodePage.h"

namespace pixmosa {
namespace {

// The sixteen colours in the order of their codes, as xterm shows them unless told otherwise.
const std::vector<Colour>& Dieciseis() {
  static const std::vector<Colour> colours = {
      Rgb(0, 0, 0),       Rgb(205, 0, 0),   Rgb(0, 205, 0),   Rgb(205, 205, 0),
      Rgb(0, 0, 238),     Rgb(205, 0, 205), Rgb(0, 205, 205), Rgb(229, 229, 229),
      Rgb(127, 127, 127), Rgb(255, 0, 0),   Rgb(0, 255, 0),   Rgb(255, 255, 0),
      Rgb(92, 92, 255),   Rgb(255, 0, 255), Rgb(0, 255, 255), Rgb(255, 255, 255)};
  return colours;
}

constexpr std::size_t kPrimeroFijo = 16;  // the first of the 256 that is the same in every terminal

// The colours 16..255: a cube of 6 x 6 x 6 and a ramp of grays.
std::vector<Colour> Fijos() {
  constexpr int kNiveles[] = {0, 95, 135, 175, 215, 255};
  std::vector<Colour> colours;
  for (const int r : kNiveles)
    for (const int g : kNiveles)
      for (const int b : kNiveles) colours.push_back(Rgb(r, g, b));
  for (int gray = 8; gray <= 238; gray += 10) colours.push_back(Rgb(gray, gray, gray));
  return colours;
}

// Parameters of the escape that sets an ink or a paper.
class Codigos {
 public:
  explicit Codigos(ColoresDeTerminal kind)
      : clase_(kind), parecido_(kind == ColoresDeTerminal::Dieciseis ? Dieciseis() : Fijos()) {}

  // kNoColour is the terminal's own.
  std::string De(Colour colour, bool paper) const {
    if (colour == kNoColour) return paper ? "49" : "39";
    if (clase_ == ColoresDeTerminal::Todos) {
      const ColourParts p = SplitColour(colour);
      return (paper ? "48;2;" : "38;2;") + std::to_string(p.red) + ';' + std::to_string(p.green) + ';' +
             std::to_string(p.blue);
    }
    const std::size_t n = parecido_.De(colour);
    if (clase_ == ColoresDeTerminal::Doscientos)
      return (paper ? "48;5;" : "38;5;") + std::to_string(n + kPrimeroFijo);
    return std::to_string((n < 8 ? 30 + n : 90 + n - 8) + (paper ? 10 : 0));
  }

 private:
  ColoresDeTerminal clase_;
  MasParecido parecido_;
};

// Writes one row after another, an escape only where something changes.
class Lineas {
 public:
  explicit Lineas(const OpcionesDeExportar& o) : o_(o), codigos_(o.colores) {}

  void Poner(const Fila& row) {
    const std::string plainInk = codigos_.De(kNoColour, false), plainPaper = codigos_.De(kNoColour, true);
    std::string ink = plainInk, paper = plainPaper;
    for (const Tramo& run : TramosDe(row, o_.color)) {
      std::string change;
      if (!run.blanco) Cambiar(change, ink, codigos_.De(Tinta(run), false));
      Cambiar(change, paper, codigos_.De(Papel(run), true));
      if (!change.empty()) texto += "\x1b[" + change + 'm';
      for (std::size_t x = run.desde; x < run.hasta; ++x) AppendUtf8(texto, Dibujable(row[x].caracter));
    }
    if (ink != plainInk || paper != plainPaper) texto += "\x1b[0m";
  }

  std::string texto;

 private:
  static void Cambiar(std::string& change, std::string& now, std::string wanted) {
    if (now == wanted) return;
    if (!change.empty()) change += ';';
    change += wanted;
    now = std::move(wanted);
  }

  Colour Tinta(const Tramo& run) const {
    return run.tinta == kNoColour && o_.tintaPedida ? o_.tinta : run.tinta;
  }
  Colour Papel(const Tramo& run) const {
    return run.papel == kNoColour && o_.papelPedido ? o_.papel : run.papel;
  }

  const OpcionesDeExportar& o_;
  Codigos codigos_;
};

}  // namespace

std::string ComoAns(const Dibujo& drawing, const OpcionesDeExportar& o, const Medios&) {
  Lineas lines(o);
  for (const Fila& row : drawing.filas) {
    if (&row != drawing.filas.data()) lines.texto += '\n';
    lines.Poner(row);
  }
  return std::move(lines.texto);
}

}  // namespace pixmosa

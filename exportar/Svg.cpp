#include <algorithm>
#include <charconv>
#include <set>

#include "exportar/Escritores.h"
#include "exportar/Texto.h"
#include "platform/CodePage.h"

namespace pixmosa {
namespace {

std::string Numero(std::size_t n) {
  return std::to_string(n);
}

// Where the letters of the font stand, in pixels from the top of the cell: the lowest point of an "H".
std::string LineaBase(const Medios& means) {
  const std::string path = means.superficie.Outline(means.fuente, means.celda, U'H');
  double lowest = 0, v = 0;
  bool down = false;  // the number is the second of its point
  const char* const end = path.data() + path.size();
  for (const char* at = path.data(); at != end;) {
    const auto [next, error] = std::from_chars(at, end, v);
    if (error != std::errc()) {
      ++at;
      continue;
    }
    if (down) lowest = std::max(lowest, v);
    down = !down;
    at = next;
  }
  if (lowest <= 0) lowest = 0.8 * means.celda.height;
  const int hundredths = RoundHalfEven(lowest * 100);
  return std::to_string(hundredths / 100) + "." + std::to_string(hundredths / 10 % 10) +
         std::to_string(hundredths % 10);
}

std::string Relleno(Colour ink) {
  return ink == kNoColour ? "" : " fill=\"" + Hexadecimal(ink) + '"';
}

void AppendPapeles(std::string& to, const Fila& row, std::size_t y, Extent cell) {
  const std::size_t width = cell.width, height = cell.height;
  for (const Tramo& run : TramosDe(row, false))
    if (run.papel != kNoColour)
      to += "<rect x=\"" + Numero(run.desde * width) + "\" y=\"" + Numero(y) + "\" width=\"" +
            Numero((run.hasta - run.desde) * width) + "\" height=\"" + Numero(height) + '"' +
            Relleno(run.papel) + "/>\n";
}

bool EsTodoUsual(const Fila& row) {
  return std::ranges::all_of(row, [](const Celda& c) { return EsUsual(Dibujable(c.caracter)); });
}

// Where a run starts, or where each of its characters stands.
std::string Sitios(const Tramo& run, std::size_t width, bool each) {
  std::string s = " x=\"" + Numero(run.desde * width);
  for (std::size_t x = run.desde + 1; each && x < run.hasta; ++x) s += ' ' + Numero(x * width);
  return s + '"';
}

// A row as text: its length is fixed, and every run of a colour starts at its column also where a viewer
// knows no fixed length. Where characters may be of any width, each stands at its own.
void AppendTexto(std::string& to, const Fila& row, std::size_t y, const std::string& base, bool color,
                 std::size_t width) {
  to += "<text transform=\"translate(0 " + Numero(y) + ")\" y=\"" + base + "\" xml:space=\"preserve\"";
  if (!row.empty())
    to += " textLength=\"" + Numero(row.size() * width) + "\" lengthAdjust=\"spacingAndGlyphs\"";
  to += '>';
  const bool each = !EsTodoUsual(row);
  for (const Tramo& run : TramosDe(row, color)) {
    const bool span = each || run.tinta != kNoColour;
    if (span) to += "<tspan" + Sitios(run, width, each) + Relleno(run.tinta) + '>';
    for (std::size_t x = run.desde; x < run.hasta; ++x) AppendEscapado(to, Dibujable(row[x].caracter));
    if (span) to += "</tspan>";
  }
  to += "</text>\n";
}

std::string Nombre(char32_t c) {
  return "g" + std::to_string(static_cast<std::uint32_t>(c));
}

// Every glyph that is used and has ink, once; `drawn` gets their characters.
std::string Definiciones(const Dibujo& drawing, const Medios& means, std::set<char32_t>& drawn) {
  std::set<char32_t> used;
  for (const Fila& row : drawing.filas)
    for (const Celda& cell : row) used.insert(Dibujable(cell.caracter));
  std::string s = "<defs>\n";
  for (const char32_t c : used) {
    const std::string path = means.superficie.Outline(means.fuente, means.celda, c);
    if (path.empty()) continue;
    s += "<path id=\"" + Nombre(c) + "\" d=\"" + path + "\"/>\n";
    drawn.insert(c);
  }
  return s + "</defs>\n";
}

void AppendTrazos(std::string& to, const Fila& row, std::size_t y, bool color, std::size_t width,
                  const std::set<char32_t>& drawn) {
  to += "<g transform=\"translate(0 " + Numero(y) + ")\">";
  for (std::size_t x = 0; x < row.size(); ++x) {
    const char32_t c = Dibujable(row[x].caracter);
    if (drawn.contains(c))
      to += "<use xlink:href=\"#" + Nombre(c) + "\" x=\"" + Numero(x * width) + '"' +
            Relleno(color ? row[x].tinta : kNoColour) + "/>";
  }
  to += "</g>\n";
}

std::string Cabeza(const Dibujo& drawing, const OpcionesDeExportar& o, Extent cell) {
  const std::size_t cellWidth = cell.width, cellHeight = cell.height;
  const std::string width = Numero(std::max<std::size_t>(1, drawing.Columnas()) * cellWidth),
                    height = Numero(std::max<std::size_t>(1, drawing.filas.size()) * cellHeight);
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" "
         "xmlns:xlink=\"http://www.w3.org/1999/xlink\" xml:lang=\"es\" width=\"" +
         width + "\" height=\"" + height + "\" viewBox=\"0 0 " + width + ' ' + height + "\">\n<title>" +
         Escapado(o.titulo) + "</title>\n<rect width=\"" + width + "\" height=\"" + height + '"' +
         Relleno(o.papel) + "/>\n";
}

}  // namespace

std::string ComoSvg(const Dibujo& drawing, const OpcionesDeExportar& o, const Medios& means) {
  const std::size_t width = means.celda.width, height = means.celda.height;
  std::string s = Cabeza(drawing, o, means.celda);
  for (std::size_t r = 0; r < drawing.filas.size(); ++r)
    AppendPapeles(s, drawing.filas[r], r * height, means.celda);
  if (o.trazos) {
    std::set<char32_t> drawn;
    s += Definiciones(drawing, means, drawn) + "<g" + Relleno(o.tinta) + ">\n";
    for (std::size_t r = 0; r < drawing.filas.size(); ++r)
      AppendTrazos(s, drawing.filas[r], r * height, o.color, width, drawn);
  } else {
    const std::string base = LineaBase(means);
    s += "<g" + Relleno(o.tinta) + " font-family=\"" + Escapado(CadenaCss(means.fuente.name)) +
         ",'DejaVu Sans Mono',Menlo,Consolas,monospace\" font-size=\"" +
         std::to_string(PixelHeight(means.fuente)) +
         "\" "
         "style=\"white-space:pre;text-rendering:geometricPrecision;font-kerning:none;font-variant-ligatures:"
         "none\">\n";
    for (std::size_t r = 0; r < drawing.filas.size(); ++r)
      AppendTexto(s, drawing.filas[r], r * height, base, o.color, width);
  }
  return s + "</g>\n</svg>\n";
}

}  // namespace pixmosa


#include <algorithm>

#include "exportar/Escritores.h"
#include "exportar/Peliculas.h"

namespace pixmosa {
namespace {

constexpr std::string_view kEmpezar = "\x1b[?25l\x1b[2J", kTerminar = "\x1b[?25h";

// A string of JSON, with its quotes.
std::string CadenaJson(std::string_view utf8) {
  constexpr char kDigitos[] = "0123456789abcdef";
  std::string s = "\"";
  for (const char c : utf8) {
    const auto code = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') s += '\\';
    if (code < 0x20) {
      s += std::string("\\u00") + kDigitos[code >> 4] + kDigitos[code & 15];
    } else {
      s += c;
    }
  }
  return s + '"';
}

// Milliseconds as seconds with a point.
std::string Segundos(std::int64_t milliseconds) {
  const std::string rest = std::to_string(milliseconds % 1000);
  return std::to_string(milliseconds / 1000) + '.' + std::string(3 - rest.size(), '0') + rest;
}

class Grabacion final : public EscritorDePelicula {
 public:
  explicit Grabacion(Rodaje film) : o_(std::move(film)) {
    o_.salida("{\"version\": 2, \"width\": " + std::to_string(o_.cuadro.width) + ", \"height\": " +
              std::to_string(o_.cuadro.height) + ", \"title\": " + CadenaJson(o_.opciones.titulo) + "}\n");
  }

  void Poner(const Dibujo& drawing, int milliseconds) override {
    Suceso((tiempo_ == 0 ? std::string(kEmpezar) : std::string()) +
           PantallaDe(drawing, o_.opciones, o_.medios, o_.cuadro));
    tiempo_ += milliseconds;
  }

  // The last event holds the last frame for its time.
  void Acabar() override { Suceso(kTerminar); }

 private:
  void Suceso(std::string_view shown) {
    o_.salida('[' + Segundos(tiempo_) + ", \"o\", " + CadenaJson(shown) + "]\n");
  }

  Rodaje o_;
  std::int64_t tiempo_ = 0;  // milliseconds of the frames before
};

}  // namespace

std::unique_ptr<EscritorDePelicula> AbrirGrabacion(Rodaje film) {
  return std::make_unique<Grabacion>(std::move(film));
}

std::string PantallaDe(const Dibujo& drawing, const OpcionesDeExportar& options, const Medios& means,
                       Extent screen) {
  const auto columns = static_cast<std::size_t>(screen.width), rows = static_cast<std::size_t>(screen.height);
  Dibujo seen;
  for (std::size_t y = 0; y < std::min(rows, drawing.filas.size()); ++y) {
    const Fila& row = drawing.filas[y];
    seen.filas.emplace_back(row.begin(),
                            row.begin() + static_cast<std::ptrdiff_t>(std::min(columns, row.size())));
  }
  const std::string lines = ComoAns(seen, options, means);
  std::string s = "\x1b[H";
  std::string_view rest = lines;
  for (const Fila& row : seen.filas) {
    s += rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(rest.size(), rest.find('\n')));
    if (!rest.empty()) rest.remove_prefix(1);
    // Behind a row that reaches the edge nothing is left, and the terminal would take its last cell.
    if (row.size() < columns) s += "\x1b[K";
    if (&row != &seen.filas.back()) s += "\r\n";
  }
  if (seen.filas.size() < rows) s += seen.filas.empty() ? "\x1b[J" : "\r\n\x1b[J";
  return s;
}

}  // namespace pixmosa

#include "cli/Reproducir.h"

#include <climits>
#include <thread>
#include <unistd.h>

#include "platform/Temporales.h"

namespace pixmosa::cli {
namespace {

using Reloj = std::chrono::steady_clock;

constexpr std::string_view kEntrar = "\x1b[?1049h\x1b[?25l\x1b[2J", kSalir = "\x1b[0m\x1b[?25h\x1b[?1049l";

// The other screen while it lives.
class Pantalla {
 public:
  explicit Pantalla(Consola& consola) : consola_(consola) { consola_.Escribir(kEntrar); }
  ~Pantalla() {
    try {
      consola_.Escribir(kSalir);
    } catch (const ErrorDeTrabajo&) {  // the terminal is gone
    }
  }
  Pantalla(const Pantalla&) = delete;
  Pantalla& operator=(const Pantalla&) = delete;

 private:
  Consola& consola_;
  Despedida despedida_{STDOUT_FILENO, kSalir};
};

// Columns with which the text of a picture is no higher than the terminal.
void CaberEn(Programa& p, Extent picture, int method, int rows) {
  while (rows > 0 && p.basAscii.AsciiColumns > 1) {
    Extent text = ResizedExtent(p.basAscii, picture, method);
    if (method == kAntiAlias) text.height /= 3;
    if (text.height <= rows) return;
    const int columns = p.basAscii.AsciiColumns;
    p.basAscii.AsciiColumns = std::max(1, std::min(columns - 1, columns * rows / text.height));
  }
}

}  // namespace

void Reproducir(Consola& consola, Programa& p, const Pelicula& film, const Revelado& how, bool ajustar) {
  const int rows = consola.AltoDeTerminal();
  std::optional<Pantalla> screen;
  Reloj::time_point end;
  bool first = true, any = false;
  std::string failures;
  for (; const std::optional<Toma> shot = film.siguiente(); first = false) {
    if (first && ajustar) CaberEn(p, shot->origen.entera().Size(), how.metodo, rows);
    if (!screen) {
      screen.emplace(consola);
      end = Reloj::now();
    }
    const auto start = end;
    end += std::chrono::milliseconds(shot->milisegundos);
    if (any && Reloj::now() >= end) continue;
    try {
      const Dibujo drawing = GenerarDibujo(p, shot->origen, how.metodo, how.opciones.color);
      std::this_thread::sleep_until(start);
      const int most = rows > 0 ? rows : INT_MAX;
      consola.Escribir(PantallaDe(drawing, how.opciones, how.medios, {p.basAscii.AsciiColumns, most}));
      any = true;
    } catch (const PictureError& e) {
      failures += failures.empty() ? e.what() : "";
    }
    std::this_thread::sleep_until(end);
  }
  screen.reset();
  if (!any) throw ErrorDeTrabajo("No se ha podido leer ningún fotograma de \"" + film.nombre + "\".");
  if (!failures.empty()) consola.Avisar(failures);
}

}  // namespace pixmosa::cli

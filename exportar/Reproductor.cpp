#include <algorithm>
#include <optional>

#include "exportar/Base64.h"
#include "exportar/GuionDelReproductor.h"
#include "exportar/Pagina.h"
#include "exportar/Peliculas.h"

namespace pixmosa {
namespace {

constexpr int kPasoDeColor = 5;  // the colours of the frames' pictures are off by 2 levels at most

// A string of a script that stands in a page, with its quotes.
std::string CadenaDeGuion(std::string_view utf8) {
  std::string s = "\"";
  for (const char c : utf8) {
    if (c == '\n') {
      s += "\\n";
    } else if (c == '<') {
      s += "\\x3c";  // nothing in it ends the script
    } else {
      if (c == '"' || c == '\\') s += '\\';
      s += c;
    }
  }
  return s + '"';
}

class Reproductor final : public EscritorDePelicula {
 public:
  explicit Reproductor(Rodaje film)
      : o_(std::move(film)), enImagen_(o_.opciones.color && !o_.opciones.sinImagenes) {}

  void Poner(const Dibujo& drawing, int milliseconds) override {
    std::string content = Contenido(drawing, o_.opciones.color, enImagen_ ? nullptr : &clases_);
    std::string colours = enImagen_ ? ColoresDe(drawing) : std::string();
    if (espera_ && espera_->contenido == content && espera_->colores == colours) {
      espera_->milisegundos += milliseconds;
      return;
    }
    if (espera_) {
      Escribir(*espera_);
    } else {
      Empezar(content, colours);
    }
    espera_ = {std::move(content), std::move(colours), milliseconds};
  }

  void Acabar() override {
    Escribir(*espera_);
    o_.salida(kGuion);
    o_.salida("</script>\n");
    // The spans' colours are known only now.
    if (!clases_.Reglas().empty()) o_.salida("<style>\n" + clases_.Reglas() + kReglasLegibles + "</style>\n");
    o_.salida("</body>\n</html>\n");
  }

 private:
  struct Cuadro {
    std::string contenido, colores;
    std::int64_t milisegundos;
  };

  // The data of the picture of a frame's colours; nothing for a frame without cells.
  std::string ColoresDe(const Dibujo& drawing) {
    const std::size_t columns = std::max(drawing.Columnas(), static_cast<std::size_t>(o_.cuadro.width));
    if (columns == 0 || drawing.filas.empty()) return {};
    return Base64(o_.medios.codificarPng(
        ImagenDeCeldas(drawing, columns, &Celda::tinta, o_.opciones.tinta, kPasoDeColor)));
  }

  void Empezar(const std::string& content, const std::string& colours) {
    const OpcionesDeExportar& options = o_.opciones;
    std::string page = PrincipioDePagina(options, "img-src data:; script-src 'unsafe-inline'; ");
    page += "<style>\n" + ReglasDePagina(options) +
            ReglasDeTexto(static_cast<std::size_t>(o_.cuadro.width), o_.medios);
    if (enImagen_)
      page +=
          ReglaDeImagenes(colours.empty() ? "none" : "url(data:image/png;base64," + colours + ")", "text");
    page += kReglasDeMandos;
    page += kReglasLegibles;
    page += "</style>\n</head>\n<body>\n<pre role=\"img\" aria-label=\"" + Escapado(options.titulo) + "\">" +
            (content.starts_with('\n') ? "\n" : "") + content + "</pre>\n" + kMandos +
            "<script>\n\"use strict\";\n(() => {\nconst C = " + (enImagen_ ? "true" : "false") + ", F = [\n";
    o_.salida(page);
  }

  void Escribir(const Cuadro& frame) {
    o_.salida('[' + std::to_string(frame.milisegundos) + ',' + CadenaDeGuion(frame.contenido) + ",\"" +
              frame.colores + "\"],\n");
  }

  Rodaje o_;
  bool enImagen_;
  Clases clases_;
  std::optional<Cuadro> espera_;  // the last frame, until another one follows
};

}  // namespace

std::unique_ptr<EscritorDePelicula> AbrirReproductor(Rodaje film) {
  return std::make_unique<Reproductor>(std::move(film));
}

}  // namespace pixmosa
